#include "core/retomada.h"

#include "core/compra.h"
#include "core/contagem.h"
#include "core/novojogo.h"
#include "core/pecas.h"
#include "core/pilha.h"
#include "core/textos.h"

namespace corvina {

namespace {
inline constexpr const char* kContinuar = "Deseja continuar a partida interrompida?";

Peca faceDa(Carta c) {
    return {static_cast<Parte>(static_cast<int>(Parte::coracao) + c.naipe - 1), c.valor};
}

void poeMao(Casas& valor, Casas& naipe, int16& qtd, const std::vector<Carta>& cartas) {
    qtd = static_cast<int16>(cartas.size());
    for (int i = 0; i < qtd; ++i)
        poeCarta(valor, naipe, i + 1, cartas[static_cast<std::size_t>(i)]);
}

// The pile's pictures come back as the hand's moves made them, without their flights.
void refazPilha(Jogo& jogo, const RegistroDaMao& r) {
    VistaMesa& v = jogo.vista;
    for (const Lance& l : r.lances) {
        if (l.origem == Origem::Pilha) {
            tiraDaPilha(jogo);
            v.mostraPeca(peca::kDiscartado2, false);
        }
        if (!l.completo()) continue;
        abreLugarNaPilha(jogo);
        v.copiaFigura(peca::kDiscartado, faceDa(l.descartada()));
        v.aplicaContorno(peca::kDiscartado, kCorDaMesa);
        v.mostraPeca(peca::kDiscartado, true);
    }
}
} // namespace

void retoma(Jogo& jogo, const PartidaGuardada& p, const EstadoDaMao& e) {
    VistaMesa& v = jogo.vista;
    Mesa& m = jogo.mesa;
    Module1& g = jogo.modulo;
    g.nivel = p.nivel;
    g.distribuicaoJusta = p.justa;
    g.pontosJog = p.pontosJog;
    g.pontosMac = p.pontosMac;
    jogo.maos = p.maos;
    arrumaMesa(jogo);
    refazPilha(jogo, p.atual);
    jogo.registro = p.atual;
    jogo.historico = e.historico;
    poeMao(m.jogValor, m.jogNaipe, m.qtdJog, e.jog);
    poeMao(m.macValor, m.macNaipe, m.qtdMac, e.mac);
    m.qtdBaralho = static_cast<int16>(e.monte.size());
    for (int i = 0; i < m.qtdBaralho; ++i)
        poeCarta(m.baralhoValor, m.baralhoNaipe, m.qtdBaralho - i,
                 e.monte[static_cast<std::size_t>(i)]);
    // The last card thrown, as the table keeps it even once taken back.
    const Carta topo = e.historico.descartes.empty() ? Carta{} : e.historico.descartes.back();
    m.discarteValor = topo.valor;
    m.discarteNaipe = topo.naipe;

    v.mostraPlacar(g.pontosJog, g.pontosMac);
    v.mostraPeca(peca::kCostas, m.qtdBaralho > 0);
    v.apresentacartasdojog(1, m.qtdJog);
    v.apresentacartasdamac(1, 0);
    v.mostraPeca(peca::kLabel4, true);
    v.mostraContagens(TemQuantosGrupos(m, Lado::Jog), TemQuantosGrupos(m, Lado::Mac));
    if (m.qtdJog == kCasaCompra) {
        fechaCompra(jogo);
        escreveTrincas(jogo);
        return;
    }
    v.Habilita(true);
    v.habilitaPeca(peca::kDiscartado, true);
    v.habilitaPeca(peca::kCostas, true);
    if (!p.atual.lances.empty()) v.mostraPrompt(texto::kPegueBaralhoOuDescarte);
    escreveTrincas(jogo);
    v.mostraMesa();
}

bool ofereceRetomada(Jogo& jogo) {
    VistaMesa& v = jogo.vista;
    const std::string nome = jogo.modulo.nomeJogador;
    PartidaGuardada p;
    if (!v.partidaGuardada(nome, p)) return false;
    const Conferida c = confere(p);
    if (!c.estado) return false; // the keeper sets such a match aside; here it is only passed by
    if (v.caixaMensagem(kContinuar, kEstiloSimNao, "") != kBotaoSim) {
        v.esquecePartida(nome); // an abandoned match: it changes no record
        return false;
    }
    retoma(jogo, p, *c.estado);
    return true;
}

} // namespace corvina
