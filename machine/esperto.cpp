#include "machine/esperto.h"

#include <algorithm>
#include <tuple>

#include "core/contagem_de_cartas.h"
#include "core/trincas.h"

namespace corvina {

namespace {

int saidas(const Distancia& d, const Copias& invisiveis) {
    int n = 0;
    for (int t = 0; t < kTipos; ++t)
        if (d.uteis >> t & 1) n += invisiveis[t];
    return n;
}

// Better first: a win, fewer missing, never a card that finishes the other side's trinca,
// more ways in, fewer cards beside the other side's, and the later slot (the drawn card).
bool melhor(const Avaliacao& a, const Avaliacao& b) {
    const auto chave = [](const Avaliacao& x) {
        return std::make_tuple(!x.vence, x.faltam, x.alimenta == 2, -x.saidas, x.alimenta, -x.casa);
    };
    return chave(a) < chave(b);
}

} // namespace

std::vector<Avaliacao> Esperto::avaliaDescartes(const std::vector<Carta>& mao,
                                                const Conhecimento& k) {
    std::vector<Avaliacao> lista;
    Copias copias = k.mao;
    for (std::size_t i = 0; i < mao.size(); ++i) {
        const int t = tipoDaCarta(mao[i]);
        Avaliacao a;
        a.casa = static_cast<int16>(i + 1);
        --copias[t];
        const Distancia d = distancia(copias, k.invisiveis, true);
        ++copias[t];
        a.faltam = d.faltam;
        a.saidas = saidas(d, k.invisiveis);
        a.alimenta = parceiras(t, k.doOutro);
        if (d.faltam == 0) {
            std::vector<Carta> nove = mao;
            nove.erase(nove.begin() + static_cast<std::ptrdiff_t>(i));
            a.vence = pontosDasCartas(nove) >= kPontosVitoria;
        }
        lista.push_back(a);
    }
    std::stable_sort(lista.begin(), lista.end(), melhor);
    return lista;
}

bool Esperto::pegaDescarte(const VisaoDoNivel& visao) {
    if (!visao.topo || visao.mao.size() != kCartasNaMao) return false;
    Conhecimento k = conhecimentoDe(visao);
    const Distancia agora = distancia(k.mao, k.invisiveis, false);
    // The top moves from the pile into the hand; what may come stays as it was.
    std::vector<Carta> dez = visao.mao;
    dez.push_back(*visao.topo);
    ++k.mao[tipoDaCarta(*visao.topo)];
    const Avaliacao depois = avaliaDescartes(dez, k).front();
    return depois.casa != kCasaCompra && (depois.vence || depois.faltam < agora.faltam);
}

int16 Esperto::descarte(const VisaoDoNivel& visao, bool) {
    return avaliaDescartes(visao.mao, conhecimentoDe(visao)).front().casa;
}

} // namespace corvina
