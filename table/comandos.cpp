#include "table/comandos.h"

#include "core/ajustes.h"
#include "core/ativacao.h"
#include "core/lote_de_ajustes.h"
#include "core/novojogo.h"
#include "core/pecas.h"
#include "core/textos.h"

namespace corvina {

namespace {
inline constexpr const char* kFechar = "Deseja fechar o Corvina?";
} // namespace

void Form_Load(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    jogo.mesa.mostraContagem = false;
    leConfig(jogo); // the back comes out of it within 1..8
    v.copiaFigura(peca::kCostas, {Parte::tipotC, jogo.modulo.tipoCarta});
    for (int i = 0; i < 5; ++i) {
        v.copiaFigura(peca::picture3(i), peca::kCostas);
        v.aplicaContorno(peca::picture3(i), kCorDaMesa);
    }
    v.copiaFigura(peca::kCostas2, peca::kCostas);
}

void aplicaCostas(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    v.copiaFigura(peca::kCostas, {Parte::tipotC, jogo.modulo.tipoCarta});
    v.apresentacartasdamac(1, 0);
    v.copiaFigura(peca::kCostas2, peca::kCostas);
    v.aplicaContorno(peca::kCostas2, kCorDaMesa);
    for (int i = 0; i < 5; ++i) {
        v.copiaFigura(peca::picture3(i), peca::kCostas);
        v.aplicaContorno(peca::picture3(i), kCorDaMesa);
    }
}

void novaPartida(Jogo& jogo) {
    if (jogo.maosEmJogo) return;
    VistaMesa& v = jogo.vista;
    jogo.cancelarNome = true;
    v.Premover(0);
    const std::string quemJogava = jogo.modulo.nomeJogador;
    v.abreJanela(Janela::FrmNome);
    jogo.cancelarNome = false;
    if (jogo.modulo.nomeCancelado) return; // the hand in progress goes on
    v.esquecePartida(quemJogava);          // given up for a new one: never offered again
    v.mostraTrincas("");
    v.mostraMesa();
    jogo.modulo.pontosJog = 0;
    jogo.modulo.pontosMac = 0;
    jogo.maos.clear();
    novojogo(jogo);
}

PedidoDaTecla Btn_Click(Jogo& jogo, int index) {
    VistaMesa& v = jogo.vista;
    if (jogo.modulo.tocarSom) v.tocaSom(som::kClique, false);
    switch (index) {
    case kBotaoNovo:
        novaPartida(jogo);
        break;
    case kBotaoOpcoes:
        v.Premover(0);
        v.abreJanela(Janela::FrmOpc);
        break;
    case kBotaoRecordes:
        v.Premover(0);
        v.abreJanela(Janela::FrmRecords);
        break;
    case kBotaoCartas: {
        const int16 antes = jogo.modulo.tipoCarta;
        v.Premover(0);
        v.abreJanela(Janela::frmtipos);
        if (jogo.modulo.tipoCarta != antes) aplicaCostas(jogo);
        break;
    }
    case kBotaoAjuda:
        v.Premover(0);
        return PedidoDaTecla::Ajuda; // started by the window; the table doesn't wait for it
    case kBotaoSair:
    case kBotaoFechar:
        return PedidoDaTecla::Fechar; // no question
    default:
        break;
    }
    return PedidoDaTecla::Nenhum;
}

PedidoDaTecla Form_KeyDown(Jogo& jogo, int keyCode, int shift) {
    Module1& g = jogo.modulo;
    switch (keyCode) {
    case kTeclaF1:
        if (shift != kShiftCtrl) break; // the hint, told in no menu
        jogo.mesa.macete = !jogo.mesa.macete;
        jogo.vista.apresentacartasdamac(1, 0);
        break;
    case kTeclaF2:
        return Btn_Click(jogo, kBotaoCartas);
    case kTeclaF3:
        return Btn_Click(jogo, kBotaoNovo);
    case kTeclaF4:
        return Btn_Click(jogo, kBotaoOpcoes);
    case kTeclaF5:
        return Btn_Click(jogo, kBotaoRecordes);
    case kTeclaF6:
        return Btn_Click(jogo, kBotaoAjuda);
    case kTeclaF7:
    case kTeclaF8:
        g.tipoCarta = static_cast<int16>(keyCode == kTeclaF7 ? g.tipoCarta - 1 : g.tipoCarta + 1);
        if (g.tipoCarta < 1) g.tipoCarta = kVersos;
        if (g.tipoCarta > kVersos) g.tipoCarta = 1;
        aplicaCostas(jogo);
        break;
    case kTeclaF9:
        jogo.mesa.mostraContagem = !jogo.mesa.mostraContagem;
        break;
    case kTeclaF10:
        if (jogo.vista.caixaMensagem(kFechar, kEstiloSimNao, "") == kBotaoSim)
            return Btn_Click(jogo, kBotaoSair);
        break;
    default:
        break;
    }
    return PedidoDaTecla::Nenhum;
}

void Form_QueryUnload(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    const Module1& g = jogo.modulo;
    const std::string base = chaveBase();
    const LoteDeAjustes lote(v);
    v.gravaAjuste(base, ajuste::kTipoCarta, std::to_string(g.tipoCarta));
    v.gravaAjuste(base, ajuste::kVelocidade, std::to_string(g.velocidade));
    v.gravaAjuste(base, ajuste::kTocarSom, textoBooleano(g.tocarSom));
    v.gravaAjuste(base, ajuste::kTocarMusica, textoBooleano(g.tocarMusica));
    v.gravaAjuste(base, ajuste::kAnimarCartas, textoBooleano(g.animarCartas));
}

void Form_Unload(Jogo& jogo) {
    jogo.vista.gravaAjuste(chaveBase(), ajuste::kUltimoJogador, jogo.modulo.nomeJogador);
}

} // namespace corvina
