#include "table/dica.h"

#include <cmath>

#include "core/pecas.h"

namespace corvina {

namespace {

// The search's best, and the best of the rest; the level may keep to its look-ahead when the
// search is unsure, the hint tells what the search found.
struct Melhores {
    Chance primeira;
    std::optional<Chance> segunda;
};

Melhores melhores(const Pesagem& p) {
    Melhores m{p.chances.front(), std::nullopt};
    if (p.chances.size() > 1) m.segunda = p.chances[1];
    return m;
}

std::string chances(const Melhores& m, const std::string& daSegunda) {
    if (!m.segunda) return "";
    return " (ganha " + percentual(m.primeira.ganha) + " das vezes; " + daSegunda + ", " +
           percentual(m.segunda->ganha) + ")";
}

} // namespace

Peca Dica::peca() const {
    switch (tipo) {
    case Tipo::Baralho:
        return peca::kCostas2;
    case Tipo::Descarte:
        return peca::kDiscartado;
    case Tipo::Carta:
        return peca::cj(casa);
    case Tipo::Nenhuma:
        break;
    }
    return peca::kVazio;
}

std::string percentual(double ganha) {
    return std::to_string(static_cast<int>(std::lround(ganha * 100))) + "%";
}

Dica dicaDaVisao(const VisaoDoNivel& v, const Orcamento& orcamento) {
    Dica d;
    if (v.mao.size() == kCartasNaMao) {
        const Pesagem p = pesaCompra(v, orcamento);
        if (p.chances.empty()) return {};
        const Melhores m = melhores(p);
        if (v.topo && m.primeira.casa == 0) {
            d.tipo = Dica::Tipo::Descarte;
            d.texto = "Dica: pegue " + nomeDaCartaComArtigo(*v.topo) + " do descarte" +
                      chances(m, "do baralho");
        } else {
            d.tipo = Dica::Tipo::Baralho;
            d.texto = "Dica: pegue uma carta do baralho" + chances(m, "do descarte");
        }
    } else if (v.mao.size() == kCasaCompra) {
        const Pesagem p = pesaDescartes(v, orcamento);
        if (p.chances.empty()) return {};
        const Melhores m = melhores(p);
        d.casa = m.primeira.casa;
        if (d.casa < 1 || d.casa > kCasaCompra) return {};
        d.tipo = Dica::Tipo::Carta;
        const std::string carta = nomeDaCartaComArtigo(v.mao[static_cast<std::size_t>(d.casa - 1)]);
        if (p.mundos == 0) {
            d.texto = "Dica: descarte " + carta + " e vença a mão";
        } else {
            const std::string outra =
                m.segunda
                    ? nomeDaCartaComArtigo(v.mao[static_cast<std::size_t>(m.segunda->casa - 1)])
                    : "";
            d.texto = "Dica: descarte " + carta + chances(m, outra);
        }
    }
    return d;
}

} // namespace corvina
