#include "core/ativacao.h"

#include <algorithm>

#include "core/ajustes.h"
#include "core/novojogo.h"
#include "core/pecas.h"

namespace corvina {

namespace {
inline constexpr const char* kTipoCartaPadrao = "4";
} // namespace

void leConfig(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    Module1& g = jogo.modulo;
    const std::string base = chaveBase();
    // A back beyond the eight there are, however large the stored number, is the nearest one;
    // 0 (absent or no number) becomes the first.
    g.tipoCarta = static_cast<int16>(std::clamp(
        numeroDoTexto(v.leAjuste(base, ajuste::kTipocarta, kTipoCartaPadrao)), 0L, long{kVersos}));
    const long velocidade =
        numeroDoTexto(v.leAjuste(base, ajuste::kVelocidade, std::to_string(kVelocidadePadrao)));
    // Only what the options window can set: another value would make a flight last minutes.
    g.velocidade = static_cast<int16>(
        velocidade >= kVelocidadeMinima && velocidade <= kVelocidadeMaxima ? velocidade
                                                                           : kVelocidadePadrao);
    g.tocarSom = booleanoDoTexto(v.leAjuste(base, ajuste::kTocarSom, "True"));
    g.tocarMusica = booleanoDoTexto(v.leAjuste(base, ajuste::kTocarMusica, "False"));
    g.avisoOrdenar = booleanoDoTexto(v.leAjuste(base, ajuste::kAvisoOrdenar, "False"));
    g.animarCartas = true; // stored, but never restored
    if (g.tipoCarta == 0) g.tipoCarta = 1;
}

void Form_Activate(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    v.processaEventos();
    if (jogo.mesa.jaAtivada) return;
    jogo.mesa.jaAtivada = true;
    const std::string base = chaveBase();
    if (v.leAjuste(base, ajuste::kPrimeiraVez, "").empty()) {
        v.gravaAjuste(base, ajuste::kPrimeiraVez, "1");
        v.abreJanela(Janela::FrmOpc); // the options open by themselves on a first run only
    }
    v.abreJanela(Janela::FrmNome);
    novojogo(jogo);
    v.mostraMesa();
    v.mostraPeca(peca::kPlacar1, true);
    v.mostraPeca(peca::kPlacar2, true);
    v.mostraPeca(peca::kLabel4, true);
}

} // namespace corvina
