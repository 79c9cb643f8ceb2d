#include "core/pilha.h"

#include "core/pecas.h"

namespace corvina {

namespace {
inline constexpr int16 kMaximoAposTirar = 4;
} // namespace

void tiraDaPilha(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    --jogo.modulo.qtdDescarte;
    v.copiaFigura(peca::kDiscartado2, peca::kDiscartado);
    copiaLugar(v, peca::kDiscartado2, peca::kDiscartado);
    v.mostraPeca(peca::kDiscartado2, true);
    v.copiaFigura(peca::kDiscartado, peca::kAntes);
    if (jogo.modulo.qtdDescarte > kMaximoAposTirar) jogo.modulo.qtdDescarte = kMaximoAposTirar;
    v.MostraDiscarts();
}

void abreLugarNaPilha(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    v.copiaFigura(peca::kAntes, peca::kDiscartado);
    v.MostraDiscarts();
    ++jogo.modulo.qtdDescarte;
}

} // namespace corvina
