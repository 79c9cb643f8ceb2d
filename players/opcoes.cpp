#include "players/opcoes.h"

#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"

namespace corvina {

Opcoes opcoesAtuais(const Module1& m) {
    return {m.tocarSom, m.tocarMusica, m.animarCartas, m.velocidade, m.tamanhoDaMesa};
}

void aceitaOpcoes(Module1& m, Armazem& a, const Opcoes& o) {
    m.tocarSom = o.tocarSom;
    m.tocarMusica = o.tocarMusica;
    m.animarCartas = o.animarCartas;
    const std::string base = chaveBase();
    const LoteDeAjustes lote(a);
    a.grava(base, ajuste::kTocarSom, textoBooleano(o.tocarSom));
    a.grava(base, ajuste::kTocarMusica, textoBooleano(o.tocarMusica));
    a.grava(base, ajuste::kAnimarCartas, textoBooleano(o.animarCartas));
    a.grava(base, ajuste::kVelocidade, std::to_string(o.velocidade));
    m.velocidade = static_cast<int16>(o.velocidade);
    m.tamanhoDaMesa = o.tamanhoDaMesa;
    a.grava(base, ajuste::kTamanhoDaMesa, std::to_string(o.tamanhoDaMesa));
}

} // namespace corvina
