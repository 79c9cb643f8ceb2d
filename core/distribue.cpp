#include "core/distribue.h"

#include "core/contagem.h"

namespace corvina {

namespace {
inline constexpr int kInicioMaquina = kCartasNaMao + 1;   // positions 10..18
inline constexpr int kInicioMonte = 2 * kCartasNaMao + 1; // positions 19..104
inline constexpr int kPontosQuaseFim = kPontosDaPartida - 1;

// The log of the hand begins with the deal as it stands, the stock's next card first.
void anotaDistribuicao(Jogo& jogo) {
    const Mesa& m = jogo.mesa;
    RegistroDaMao& r = jogo.registro;
    r = {};
    r.pontosJog = jogo.modulo.pontosJog;
    r.pontosMac = jogo.modulo.pontosMac;
    for (int i = 1; i <= kCartasNaMao; ++i) {
        r.jog.push_back(cartaNa(m.jogValor, m.jogNaipe, i));
        r.mac.push_back(cartaNa(m.macValor, m.macNaipe, i));
    }
    for (int i = m.qtdBaralho; i >= 1; --i)
        r.monte.push_back(cartaNa(m.baralhoValor, m.baralhoNaipe, i));
}
} // namespace

Embaralhado embaralha(Acaso& acaso) {
    Embaralhado usada{};
    std::array<bool, kCartasNoJogo + 1> tirada{};
    int16 topo = kCartasNoJogo;
    for (int p = 1; p <= kCartasNoJogo; ++p) {
        int16 r = 0;
        do {
            acaso.mexe();
            r = static_cast<int16>(static_cast<int>(topo * acaso.rnd()) + 1);
            // Every id above topo has been drawn, so a free one is always within reach.
            if (r == topo) --topo;
        } while (tirada[r]);
        tirada[r] = true;
        usada[p] = r;
    }
    return usada;
}

std::optional<int> chanceDeTroca(int16 pontosJog, int16 pontosMac) {
    if (pontosJog == kPontosQuaseFim && pontosMac < kPontosQuaseFim) return 70;
    if (pontosJog > pontosMac) return 50;
    if (pontosJog == pontosMac) return 15;
    return std::nullopt;
}

Reparticao reparte(Jogo& jogo, const Embaralhado& ids) {
    Mesa& m = jogo.mesa;
    for (int p = 1; p <= kCartasNoJogo; ++p)
        poeCarta(m.baralhoValor, m.baralhoNaipe, p, cartaDoId(ids[p]));

    const auto da = [&m](int inicioJog, int inicioMac) {
        for (int i = 1; i <= kCartasNaMao; ++i) {
            poeCarta(m.jogValor, m.jogNaipe, i,
                     cartaNa(m.baralhoValor, m.baralhoNaipe, inicioJog + i - 1));
            poeCarta(m.macValor, m.macNaipe, i,
                     cartaNa(m.baralhoValor, m.baralhoNaipe, inicioMac + i - 1));
        }
    };
    da(1, kInicioMaquina);
    m.qtdJog = kCartasNaMao;
    m.qtdMac = kCartasNaMao;

    Reparticao r;
    const int16 a = TemQuantosGrupos(m, Lado::Jog);
    const int16 b = TemQuantosGrupos(m, Lado::Mac);
    if (a > b && trocaNaDistribuicao(jogo.modulo.nivel, jogo.modulo.distribuicaoJusta)) {
        r.sortePercent = chanceDeTroca(jogo.modulo.pontosJog, jogo.modulo.pontosMac);
        if (r.sortePercent && Sorte(jogo.acaso, *r.sortePercent)) {
            da(kInicioMaquina, 1); // the better hand to the machine, in the same card order
            r.trocou = true;
            ++jogo.trocasNaDistribuicao;
        }
    }

    for (int i = kInicioMonte; i <= kCartasNoJogo; ++i) {
        m.baralhoValor[i - kInicioMonte + 1] = m.baralhoValor[i];
        m.baralhoNaipe[i - kInicioMonte + 1] = m.baralhoNaipe[i];
    }
    m.qtdBaralho = kCartasNoMonte;
    anotaDistribuicao(jogo);
    jogo.vista.mostraContagens(TemQuantosGrupos(m, Lado::Jog), TemQuantosGrupos(m, Lado::Mac));
    return r;
}

void distribue(Jogo& jogo) {
    reparte(jogo, embaralha(jogo.acaso));
}

} // namespace corvina
