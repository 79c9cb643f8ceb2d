#include "players/revisao_da_mao.h"

#include <bit>

#include "machine/conhecimento.h"
#include "machine/distancia.h"
#include "machine/forte.h"

namespace corvina {

namespace {
inline constexpr std::size_t kProximasDoMonte = 3;

std::string cartas(const std::vector<Carta>& c) {
    std::string t;
    for (std::size_t i = 0; i < c.size(); ++i)
        t += (i == 0 ? "" : i + 1 == c.size() ? " e " : ", ") + nomeDaCarta(c[i]);
    return t;
}

Saida saidaSem(const VisaoDoNivel& v, Carta jogada) {
    std::vector<Carta> nove = v.mao;
    for (auto it = nove.begin(); it != nove.end(); ++it)
        if (*it == jogada) {
            nove.erase(it);
            break;
        }
    const Conhecimento k = conhecimentoDe(v);
    const Distancia d = distancia(copiasDe(nove), k.invisiveis, true);
    Saida s{d.faltam, 0};
    for (int tipo = 0; tipo < kTipos; ++tipo)
        if (d.uteis >> tipo & 1U) s.ajudam += k.invisiveis[static_cast<std::size_t>(tipo)];
    return s;
}

std::string textoDaSaida(const Saida& s) {
    return "faltam " + std::to_string(s.faltam) + (s.faltam == 1 ? " carta" : " cartas") + " e " +
           std::to_string(s.ajudam) +
           (s.ajudam == 1 ? " das não vistas ajuda" : " das não vistas ajudam");
}

std::string textoDoLance(const Lance& l, std::size_t n, std::size_t total) {
    const bool jog = l.lado == Lado::Jog;
    std::string t = "Lance " + std::to_string(n) + " de " + std::to_string(total) + ". ";
    t += jog ? "Você " : "A máquina ";
    t += l.origem == Origem::Monte ? "comprou do monte " : "pegou do descarte ";
    t += nomeDaCartaComArtigo(l.tomada);
    if (l.completo()) t += " e descartou " + nomeDaCartaComArtigo(l.descartada());
    return t + ".";
}

std::string textoDoEstado(const EstadoDaMao& e) {
    std::string t =
        " Suas cartas: " + cartas(e.jog) + ". Cartas da máquina: " + cartas(e.mac) + ".";
    if (e.topo) t += " No descarte: " + nomeDaCarta(*e.topo) + ".";
    const std::size_t n = std::min(kProximasDoMonte, e.monte.size());
    t += " No monte, " + std::to_string(e.monte.size()) + " cartas";
    if (n > 0)
        t += "; as próximas: " +
             cartas({e.monte.begin(), e.monte.begin() + static_cast<std::ptrdiff_t>(n)});
    return t + ".";
}

std::string textoDoFim(FimDaMao fim) {
    switch (fim) {
    case FimDaMao::Jog:
        return " Você venceu a mão.";
    case FimDaMao::Mac:
        return " A máquina venceu a mão.";
    case FimDaMao::SemMonte:
        return " O monte acabou: a mão não teve vencedor.";
    case FimDaMao::EmJogo:
        break;
    }
    return "";
}
} // namespace

std::optional<Carta> descarteDoForte(const RegistroDaMao& r, std::size_t lance) {
    const auto v = visaoNoLance(r, lance);
    if (!v) return std::nullopt;
    const int16 casa = Forte().descarte(*v, r.lances[lance].origem == Origem::Pilha);
    const int16 c = casa >= 1 && casa <= static_cast<int16>(v->mao.size()) ? casa : 10;
    return v->mao[static_cast<std::size_t>(c - 1)];
}

std::optional<RevisaoDaMao> revisa(const RegistroDaMao& r, bool comForte) {
    RevisaoDaMao rev;
    const std::size_t total = r.lances.size();
    for (std::size_t k = 0; k <= total; ++k) {
        auto e = reconstroi(r, k);
        if (!e) return std::nullopt;
        PassoDaRevisao p{*e, std::nullopt, std::nullopt, "", ""};
        if (k == 0) {
            p.texto = "Distribuição.";
        } else {
            const Lance& l = r.lances[k - 1];
            p.lance = l;
            p.texto = textoDoLance(l, k, total);
            if (comForte && l.lado == Lado::Jog && l.completo()) {
                const auto v = visaoNoLance(r, k - 1);
                const auto forte = descarteDoForte(r, k - 1);
                if (!v || !forte) return std::nullopt;
                ComparacaoComForte c{l.descartada(), *forte, saidaSem(*v, l.descartada()),
                                     saidaSem(*v, *forte)};
                ++rev.lancesDoJogador;
                if (c.igual()) {
                    ++rev.iguais;
                    p.texto += " O Forte descartaria o mesmo.";
                } else {
                    p.texto += " O Forte descartaria " + nomeDaCartaComArtigo(*forte) +
                               ". Com o seu descarte " + textoDaSaida(c.saidaDoJogador) +
                               "; com o do Forte, " + textoDaSaida(c.saidaDoForte) + ".";
                }
                p.forte = c;
            }
        }
        if (k == total) p.texto += textoDoFim(r.fim);
        p.descricao = p.texto + textoDoEstado(p.estado);
        rev.passos.push_back(std::move(p));
    }
    if (!comForte) return rev;
    rev.resumo = "Você descartou como o Forte em " + std::to_string(rev.iguais) + " de " +
                 std::to_string(rev.lancesDoJogador) +
                 (rev.lancesDoJogador == 1 ? " lance." : " lances.");
    return rev;
}

} // namespace corvina
