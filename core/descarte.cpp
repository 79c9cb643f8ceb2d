#include "core/descarte.h"

#include <optional>

#include "core/compra.h"
#include "core/contagem.h"
#include "core/finaliza.h"
#include "core/novojogo.h"
#include "core/pecas.h"
#include "core/pilha.h"
#include "core/textos.h"
#include "core/trincas.h"
#include "core/vez_da_maquina.h"

namespace corvina {

namespace {
// A discard that costs the hand more than this many points sounds the error.
inline constexpr int kPerdaTolerada = 4;

Tarefa<> voaParaPilha(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    abreLugarNaPilha(jogo);
    v.copiaFigura(peca::kDiscartado2, peca::kPicmover);
    v.aplicaContorno(peca::kDiscartado2, kCorDaMesa);
    copiaLugar(v, peca::kDiscartado2, peca::kPicmover);
    v.mostraPeca(peca::kDiscartado2, true);
    v.mostraPeca(peca::kPicmover, false);
    v.destaca(0);
    jogo.mesa.animando = true;
    co_await voaPara(v, peca::kDiscartado2, peca::kDiscartado, voo::kDescarte);
    v.copiaFigura(peca::kDiscartado, peca::kDiscartado2);
    v.mostraPeca(peca::kDiscartado, true);
    v.aplicaContorno(peca::kDiscartado, kCorDaMesa);
    v.mostraPeca(peca::kDiscartado2, false);
    jogo.mesa.animando = false;
}

// Nothing may change the hands from here to the end of the machine's turn.
struct MaosEmJogo {
    explicit MaosEmJogo(Jogo& j) : jogo(j), antes(j.maosEmJogo) { jogo.maosEmJogo = true; }
    ~MaosEmJogo() { jogo.maosEmJogo = antes; }
    MaosEmJogo(const MaosEmJogo&) = delete;
    MaosEmJogo& operator=(const MaosEmJogo&) = delete;
    Jogo& jogo;
    bool antes;
};
} // namespace

Tarefa<Descarte> descartaJog(Jogo& jogo, int16 posicao) {
    VistaMesa& v = jogo.vista;
    Mesa& m = jogo.mesa;
    // A discard already under way (its flight lets events in) holds the hands.
    if (jogo.maosEmJogo || m.qtdJog != kCasaCompra || posicao < 1 || posicao > kCasaCompra)
        co_return Descarte::Recusado;
    MaosEmJogo guarda(jogo);
    jogo.registro.descarta(Lado::Jog, cartasDe(m.jogValor, m.jogNaipe, m.qtdJog), posicao);

    v.Habilita(false);
    voltaOrdenarAuto(jogo);
    const int16 antesDescarte = TemQuantosGrupos(m, Lado::Jog, true); // trincas alone
    if (jogo.modulo.tocarSom) v.tocaSom(som::kCarta1Descarte, false);
    co_await voaParaPilha(jogo);
    m.discarteValor = m.jogValor[posicao];
    m.discarteNaipe = m.jogNaipe[posicao];
    jogo.historico.descarta(Lado::Jog, Carta{m.discarteValor, m.discarteNaipe});
    co_await v.espera(pausa::kChegada);

    --m.qtdJog;
    for (int j = posicao; j <= m.qtdJog; ++j) {
        m.jogValor[j] = m.jogValor[j + 1];
        m.jogNaipe[j] = m.jogNaipe[j + 1];
    }
    v.apresentacartasdojog(1, m.qtdJog);
    const int16 depoisDescarte = TemQuantosGrupos(m, Lado::Jog);
    if (jogo.modulo.tocarSom && depoisDescarte < antesDescarte - kPerdaTolerada) {
        v.processaEventos();
        co_await v.espera(0); // the row as it is now is on the screen before the sound holds it
        v.tocaSom(som::kErro, true);
    }
    if (depoisDescarte >= kPontosVitoria) {
        // The player's hand is judged first: the machine doesn't play.
        v.mostraTrincas(texto::kTresTrincas);
        finaliza(jogo, Lado::Jog);
        novojogo(jogo);
        co_return Descarte::MaoTerminou;
    }
    v.mostraTrincas(legendaTrincas(depoisDescarte));
    v.mostraContagens(depoisDescarte, std::nullopt);
    v.mostraPrompt(texto::kAguardeMaquina);

    v.Habilita(false);
    // A spent stock deals a new hand inside the machine's turn; its hand is judged all the same.
    const bool novaMao = (co_await macjoga(jogo)) == FimDaVez::AcabouBaralho;
    v.Habilita(true);
    const int16 valorMac = TemQuantosGrupos(m, Lado::Mac);
    v.mostraContagens(std::nullopt, valorMac);
    if (valorMac >= kPontosVitoria) {
        finaliza(jogo, Lado::Mac);
        novojogo(jogo);
        co_return Descarte::MaoTerminou;
    }
    v.ponteiro(peca::kCostas2, Ponteiro::padrao);
    v.ponteiro(peca::kDiscartado, Ponteiro::padrao);
    v.ponteiro(peca::kPicmover, Ponteiro::proibido);
    co_return novaMao ? Descarte::MaoTerminou : Descarte::Feito;
}

} // namespace corvina
