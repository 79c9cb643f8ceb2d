#include "core/estado_da_mao.h"

#include <algorithm>
#include <array>

namespace corvina {

namespace {
bool doisBaralhos(const RegistroDaMao& r) {
    std::array<int, kCartasPorBaralho> copias{};
    for (const auto* parte : {&r.jog, &r.mac, &r.monte})
        for (const Carta c : *parte) {
            if (!cartaValida(c)) return false;
            ++copias[static_cast<std::size_t>((c.naipe - 1) * kValores + c.valor - 1)];
        }
    return std::all_of(copias.begin(), copias.end(), [](int n) { return n == 2; });
}

bool mesmasCartas(std::vector<Carta> a, std::vector<Carta> b) {
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    return a == b;
}

// The draw of a move: false when the card wasn't where the move says.
bool compra(EstadoDaMao& e, const Lance& l) {
    std::vector<Carta>& mao = l.lado == Lado::Jog ? e.jog : e.mac;
    if (l.origem == Origem::Monte) {
        if (e.monte.empty() || e.monte.front() != l.tomada) return false;
        e.monte.erase(e.monte.begin());
    } else {
        if (!e.topo || *e.topo != l.tomada) return false;
        e.historico.toma(l.lado, l.tomada);
        e.topo.reset();
    }
    mao.push_back(l.tomada);
    return true;
}

bool descarta(EstadoDaMao& e, const Lance& l) {
    std::vector<Carta>& mao = l.lado == Lado::Jog ? e.jog : e.mac;
    if (!mesmasCartas(mao, l.mao)) return false;
    mao = l.mao;
    const Carta c = l.descartada();
    mao.erase(mao.begin() + (l.casa - 1));
    e.historico.descarta(l.lado, c);
    e.topo = c;
    return true;
}
} // namespace

std::optional<EstadoDaMao> reconstroi(const RegistroDaMao& r, std::size_t lances) {
    if (!doisBaralhos(r) || lances > r.lances.size()) return std::nullopt;
    EstadoDaMao e{r.jog, r.mac, r.monte, std::nullopt, {}};
    for (std::size_t i = 0; i < lances; ++i) {
        const Lance& l = r.lances[i];
        // The player opens every hand and the sides take turns; only the last may lack its throw.
        const Lado daVez = i % 2 == 0 ? Lado::Jog : Lado::Mac;
        if (l.lado != daVez || !compra(e, l)) return std::nullopt;
        if (l.completo() ? !descarta(e, l) : i + 1 != r.lances.size()) return std::nullopt;
    }
    return e;
}

std::optional<VisaoDoNivel> visaoNoLance(const RegistroDaMao& r, std::size_t lance) {
    if (lance >= r.lances.size() || !r.lances[lance].completo()) return std::nullopt;
    auto e = reconstroi(r, lance);
    const Lance& l = r.lances[lance];
    if (!e || !compra(*e, l)) return std::nullopt;
    const Lado outro = l.lado == Lado::Jog ? Lado::Mac : Lado::Jog;
    VisaoDoNivel v;
    v.mao = l.mao;
    v.topo = e->topo;
    v.descartes = e->historico.descartes;
    v.tomadasPeloOutro = e->historico.tomadasPor(outro);
    v.tomadasProprias = e->historico.tomadasPor(l.lado);
    for (std::size_t i = 0; i < v.descartes.size(); ++i)
        if (e->historico.autores[i] == outro) v.descartesDoOutro.push_back(v.descartes[i]);
    v.monte = static_cast<int16>(e->monte.size());
    const bool jog = l.lado == Lado::Jog;
    v.pontosProprios = jog ? r.pontosJog : r.pontosMac;
    v.pontosDoOutro = jog ? r.pontosMac : r.pontosJog;
    return v;
}

} // namespace corvina
