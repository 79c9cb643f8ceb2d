#include "machine/autojogador.h"

#include <chrono>
#include <stdexcept>

#include "core/ativacao.h"
#include "core/compra.h"
#include "core/descarte.h"
#include "core/textos.h"
#include "core/vista_nula.h"
#include "machine/contagem.h"
#include "machine/tentativas.h"

namespace corvina {

namespace {
// No hand can last this long: every take of the pile raises a side's count, every other turn
// spends a card of the stock. Past it something is broken, and the run says so.
inline constexpr long kTurnosPorMaoNoMaximo = 10000;

// The player's nine cards where the machine's rule looks for them.
Mesa espelhoDoJogador(const Mesa& m) {
    Mesa e;
    e.qtdMac = kCartasNaMao;
    for (int i = 1; i <= kCartasNaMao; ++i) {
        e.macValor[i] = m.jogValor[i];
        e.macNaipe[i] = m.jogNaipe[i];
    }
    return e;
}
} // namespace

void jogaPeloJogador(Jogo& jogo) {
    Mesa& m = jogo.mesa;
    if (m.qtdJog != kCartasNaMao) return;
    Mesa espelho = espelhoDoJogador(m);
    Decisao d;
    if (jogo.modulo.qtdDescarte > 0) {
        d = decideDescarte(espelho, Carta{m.discarteValor, m.discarteNaipe});
    } else {
        d.pontosBase = TemQuantosGrupos(espelho, Lado::Mac);
    }
    if (d.pegaDescarte) {
        Discartado_Click(jogo);
        descartaJog(jogo, d.descarte.melhorCarta);
        return;
    }
    costas2_Click(jogo);
    if (m.qtdJog != kCasaCompra) return; // the stock was spent: a new hand was dealt
    const Carta comprada = cartaNa(m.jogValor, m.jogNaipe, kCasaCompra);
    espelho.qtdMac = kCasaCompra;
    poeCarta(espelho.macValor, espelho.macNaipe, kCasaCompra, comprada);
    descartaJog(jogo, escolheDescarteAposCompra(espelho, comprada, d.pontosBase));
}

ResumoAutojogo autojoga(std::uint64_t semente, long partidas) {
    const auto inicio = std::chrono::steady_clock::now();
    ResumoAutojogo r;
    AcasoSemente acaso(semente);
    VistaNula vista;
    Jogo jogo(vista, acaso);
    leConfig(jogo);
    jogo.modulo.tocarSom = false; // nobody listens
    jogo.modulo.nomeJogador = "Autojogo";

    int16 pontosJog = 0, pontosMac = 0; // the score before the hand being closed
    long turnosNaMao = 0;
    vista.aoPrepararPlacar = [&](const Placar& p) {
        ++r.maos;
        turnosNaMao = 0;
        ++(p.pontosJog > pontosJog ? r.maosJog : r.maosMac);
        pontosJog = p.pontosJog;
        pontosMac = p.pontosMac;
        if (pontosJog < kPontosDaPartida && pontosMac < kPontosDaPartida) return;
        ++r.partidas;
        ++(pontosJog == kPontosDaPartida ? r.partidasJog : r.partidasMac);
        pontosJog = pontosMac = 0;
    };
    vista.aoPerguntar = [&](const std::string& texto) {
        if (texto == texto::kAcabouBaralhoJog || texto == texto::kAcabouBaralhoMac) {
            ++r.maos;
            ++r.maosSemVencedor;
            turnosNaMao = 0;
        }
        return kBotaoOk;
    };

    Form_Activate(jogo);
    while (r.partidas < partidas) {
        if (++turnosNaMao > kTurnosPorMaoNoMaximo)
            throw std::logic_error("a hand of the self-play never ended");
        jogaPeloJogador(jogo);
    }
    r.trocas = jogo.trocasNaDistribuicao;
    r.segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
    return r;
}

} // namespace corvina
