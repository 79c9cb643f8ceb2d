#include "core/visao_do_nivel.h"

namespace corvina {

VisaoDoNivel visaoDe(const Jogo& jogo, Lado lado) {
    const Mesa& m = jogo.mesa;
    const Module1& g = jogo.modulo;
    const bool jog = lado == Lado::Jog;
    VisaoDoNivel v;
    const int16 qtd = jog ? m.qtdJog : m.qtdMac;
    for (int i = 1; i <= qtd; ++i)
        v.mao.push_back(jog ? cartaNa(m.jogValor, m.jogNaipe, i)
                            : cartaNa(m.macValor, m.macNaipe, i));
    if (g.qtdDescarte > 0 && !jogo.historico.topoTomado)
        v.topo = Carta{m.discarteValor, m.discarteNaipe};
    v.descartes = jogo.historico.descartes;
    const Lado outro = jog ? Lado::Mac : Lado::Jog;
    v.tomadasPeloOutro = jogo.historico.tomadasPor(outro);
    v.tomadasProprias = jogo.historico.tomadasPor(lado);
    for (std::size_t i = 0; i < jogo.historico.descartes.size(); ++i)
        if (jogo.historico.autores[i] == outro)
            v.descartesDoOutro.push_back(jogo.historico.descartes[i]);
    v.monte = m.qtdBaralho;
    v.pontosProprios = jog ? g.pontosJog : g.pontosMac;
    v.pontosDoOutro = jog ? g.pontosMac : g.pontosJog;
    return v;
}

} // namespace corvina
