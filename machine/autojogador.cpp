#include "machine/autojogador.h"

#include <chrono>
#include <stdexcept>

#include "core/ativacao.h"
#include "core/compra.h"
#include "core/descarte.h"
#include "core/textos.h"
#include "core/visao_do_nivel.h"
#include "core/vista_nula.h"
#include "machine/classico.h"

namespace corvina {

namespace {
// No hand can last this long: every take of the pile raises a side's count, every other turn
// spends a card of the stock. Past it something is broken, and the run says so.
inline constexpr long kTurnosPorMaoNoMaximo = 10000;
} // namespace

void jogaPeloJogador(Jogo& jogo, Nivel& nivel) {
    Mesa& m = jogo.mesa;
    if (m.qtdJog != kCartasNaMao) return;
    if (nivel.pegaDescarte(visaoDe(jogo, Lado::Jog))) {
        ateOFim(Discartado_Click(jogo));
        ateOFim(descartaJog(jogo, nivel.descarte(visaoDe(jogo, Lado::Jog), true)));
        return;
    }
    ateOFim(costas2_Click(jogo));
    if (m.qtdJog != kCasaCompra) return; // the stock was spent: a new hand was dealt
    ateOFim(descartaJog(jogo, nivel.descarte(visaoDe(jogo, Lado::Jog), false)));
}

void jogaPeloJogador(Jogo& jogo) {
    Classico classico;
    jogaPeloJogador(jogo, classico);
}

ResumoAutojogo autojoga(std::uint64_t semente, long partidas, const std::atomic<bool>* parar,
                        const std::function<void(long, long)>& progresso) {
    const auto inicio = std::chrono::steady_clock::now();
    ResumoAutojogo r;
    AcasoSemente acaso(semente);
    VistaNula vista;
    Classico maquina, jogador;
    Jogo jogo(vista, acaso, maquina);
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
        if (progresso) progresso(r.partidas, partidas);
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
        if (parar && parar->load() && turnosNaMao == 0) {
            r.interrompido = true;
            break;
        }
        if (++turnosNaMao > kTurnosPorMaoNoMaximo)
            throw std::logic_error("a hand of the self-play never ended");
        jogaPeloJogador(jogo, jogador);
    }
    r.trocas = jogo.trocasNaDistribuicao;
    r.segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
    return r;
}

} // namespace corvina
