#include "core/novojogo.h"

#include "core/compra.h"
#include "core/contagem.h"
#include "core/distribue.h"
#include "core/finaliza.h"
#include "core/pecas.h"
#include "core/retomada.h"
#include "core/textos.h"
#include "core/trincas.h"

namespace corvina {

namespace {
inline constexpr int kDegrauDaPilha = 30; // twips between the cards of the stock and the pile
inline constexpr int kCartasNaPilha = 5;
inline constexpr int kFiguraDaPilha = 10; // any card gives the outline; the ten of spades

void arrumaPilhas(VistaMesa& v) {
    v.mostraPeca(peca::kPicmover, false);
    for (int i = 0; i < kCartasNaPilha; ++i) v.mostraPeca(peca::picture8(i), false);
    for (int i = 1; i < kCartasNaPilha; ++i) {
        const Lugar l = v.lugar(peca::picture3(i - 1));
        v.poeLugar(peca::picture3(i), {l.left - kDegrauDaPilha, l.top - kDegrauDaPilha});
    }
    const float topo = v.lugar(peca::picture3(kCartasNaPilha - 1)).top;
    for (int i = 0; i < kCartasNaPilha; ++i) {
        v.copiaFigura(peca::picture8(i), peca::ramo(kFiguraDaPilha));
        v.aplicaContorno(peca::picture8(i), kCorDaMesa);
        v.poeLugar(peca::picture8(i), {v.lugar(peca::picture8(i)).left, topo});
    }
    copiaLugar(v, peca::kDiscartado, peca::picture8(0));
    copiaLugar(v, peca::kDiscartado2, peca::picture8(0));
    for (int i = 1; i < kCartasNaPilha; ++i) {
        const Lugar l = v.lugar(peca::picture8(i - 1));
        v.poeLugar(peca::picture8(i), {l.left + kDegrauDaPilha, l.top + kDegrauDaPilha});
    }
}
} // namespace

void arrumaMesa(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    arrumaPilhas(v);
    jogo.mesa.macete = false;
    v.ponteiro(peca::kCostas2, Ponteiro::padrao);
    v.ponteiro(peca::kDiscartado, Ponteiro::padrao);
    v.ponteiro(peca::kPicmover, Ponteiro::proibido);
    v.copiaFigura(peca::kDiscartado, peca::kVazio);
    v.copiaFigura(peca::kDiscartado2, peca::kVazio);
    jogo.modulo.qtdDescarte = 0;
    jogo.historico.limpa();
    voltaOrdenarAuto(jogo); // an order pressed in the last hand means nothing in this one
}

void novojogo(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    const bool inicio = jogo.modulo.pontosJog == 0 && jogo.modulo.pontosMac == 0;
    if (inicio && jogo.maos.empty() && ofereceRetomada(jogo)) return;
    arrumaMesa(jogo);
    if (inicio) v.mostraPlacar(0, 0);
    distribue(jogo);
    v.apresentacartasdojog(1, jogo.mesa.qtdJog);
    v.apresentacartasdamac(1, 0);
    v.mostraPeca(peca::kLabel4, true);
    v.Habilita(true);
    ApuradeEntrada(jogo);
}

void ApuradeEntrada(Jogo& jogo) {
    const int16 s = escreveTrincas(jogo);
    if (s >= kPontosVitoria && jogo.mesa.qtdJog == kCartasNaMao) {
        finaliza(jogo, Lado::Jog);
        novojogo(jogo);
    }
}

std::string legendaTrincas(int16 valor) {
    if (valor >= kPontosVitoria) return texto::kTresTrincas;
    if (valor >= 2 * kPontosTrinca) return texto::kDuasTrincas;
    if (valor >= kPontosTrinca) return texto::kUmaTrinca;
    return "";
}

int16 escreveTrincas(Jogo& jogo) {
    const int16 s = TemQuantosGrupos(jogo.mesa, Lado::Jog);
    jogo.vista.mostraTrincas(legendaTrincas(s));
    return s;
}

} // namespace corvina
