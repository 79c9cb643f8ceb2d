#include "core/partida_guardada.h"

#include <algorithm>

namespace corvina {

PartidaGuardada guardaDe(const Jogo& jogo) {
    const Mesa& m = jogo.mesa;
    const Module1& g = jogo.modulo;
    PartidaGuardada p{g.nomeJogador, g.nivel,   g.distribuicaoJusta, g.pontosJog,
                      g.pontosMac,   jogo.maos, jogo.registro,       {}};
    for (int i = 1; i <= m.qtdJog; ++i) p.ordem.push_back(cartaNa(m.jogValor, m.jogNaipe, i));
    return p;
}

Conferida confere(const PartidaGuardada& p) {
    const auto erro = [](const char* e) { return Conferida{std::nullopt, e}; };
    if (p.pontosJog >= kPontosDaPartida || p.pontosMac >= kPontosDaPartida || p.pontosJog < 0 ||
        p.pontosMac < 0)
        return erro("a score past the match's end");
    int16 jog = 0, mac = 0;
    for (const RegistroDaMao& r : p.maos) {
        if (r.pontosJog != jog || r.pontosMac != mac || r.fim == FimDaMao::EmJogo)
            return erro("a hand played at another score");
        if (!reconstroi(r, r.lances.size())) return erro("a hand that doesn't replay");
        jog = static_cast<int16>(jog + (r.fim == FimDaMao::Jog));
        mac = static_cast<int16>(mac + (r.fim == FimDaMao::Mac));
    }
    if (jog != p.pontosJog || mac != p.pontosMac || p.atual.pontosJog != jog ||
        p.atual.pontosMac != mac || p.atual.fim != FimDaMao::EmJogo)
        return erro("a score that the hands don't add up to");
    auto e = reconstroi(p.atual, p.atual.lances.size());
    if (!e) return erro("a hand that doesn't replay");
    // The table waits for the player: to draw after the machine's throw, or to throw after a draw.
    const bool aposCompra = !p.atual.lances.empty() && !p.atual.lances.back().completo();
    if (!aposCompra && p.atual.lances.size() % 2 != 0) return erro("the machine to move");
    std::vector<Carta> ordem = p.ordem, mao = e->jog;
    std::sort(ordem.begin(), ordem.end());
    std::sort(mao.begin(), mao.end());
    if (ordem != mao) return erro("the player's cards aren't the hand's");
    e->jog = p.ordem;
    return {std::move(e), ""};
}

} // namespace corvina
