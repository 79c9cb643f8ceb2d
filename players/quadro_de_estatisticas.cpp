#include "players/quadro_de_estatisticas.h"

#include <chrono>
#include <cmath>
#include <cstdio>

namespace corvina {

namespace {

std::string porcento(double fracao) {
    return std::to_string(static_cast<int>(std::lround(fracao * 100))) + "%";
}

std::string sequenciaAtual(long s) {
    if (s == 0) return "—";
    const long n = s > 0 ? s : -s;
    if (s > 0) return std::to_string(n) + (n == 1 ? " vitória" : " vitórias");
    return std::to_string(n) + (n == 1 ? " derrota" : " derrotas");
}

bool daColuna(const PartidaDoHistorico& p, ColunaDoHistorico c) {
    return p.nivel == c.nivel && p.justa == c.justa;
}

} // namespace

const std::array<ColunaDoQuadro, kColunasDoQuadro>& colunasDoQuadro() {
    static const std::array<ColunaDoQuadro, kColunasDoQuadro> colunas = [] {
        std::array<ColunaDoQuadro, kColunasDoQuadro> c;
        std::size_t i = 0;
        for (const DadosDoNivel& d : kNiveisDoJogo) {
            if (trocaNaDistribuicao(d.tipo, false)) c[i++] = {std::string(d.nome), {d.tipo, false}};
            c[i++] = {std::string(d.nome) + (trocaNaDistribuicao(d.tipo, false) ? " (justa)" : ""),
                      {d.tipo, true}};
        }
        return c;
    }();
    return colunas;
}

std::vector<LinhaDoQuadro> quadroDeEstatisticas(const HistoricoDePartidas& h) {
    std::array<Estatisticas, kColunasDoQuadro> e;
    for (std::size_t i = 0; i < kColunasDoQuadro; ++i)
        e[i] = h.estatisticas(colunasDoQuadro()[i].coluna);
    const auto linha = [&](const char* nome, auto valor) {
        LinhaDoQuadro l{nome, {}};
        for (std::size_t i = 0; i < kColunasDoQuadro; ++i)
            l.valores[i] = e[i].jogadas == 0 ? "—" : valor(e[i]);
        return l;
    };
    const auto numero = [](long Estatisticas::*campo) {
        return [campo](const Estatisticas& x) { return std::to_string(x.*campo); };
    };
    return {
        linha("Partidas", numero(&Estatisticas::jogadas)),
        linha("Vitórias", numero(&Estatisticas::vitorias)),
        linha("Derrotas", numero(&Estatisticas::derrotas)),
        linha("Aproveitamento",
              [](const Estatisticas& x) { return porcento(x.fracaoDeVitorias()); }),
        linha("Mãos ganhas", numero(&Estatisticas::maosGanhas)),
        linha("Mãos perdidas", numero(&Estatisticas::maosPerdidas)),
        linha("Sequência atual", [](const Estatisticas& x) { return sequenciaAtual(x.sequencia); }),
        linha("Maior sequência de vitórias", numero(&Estatisticas::maiorSequenciaDeVitorias)),
        linha("Maior sequência de derrotas", numero(&Estatisticas::maiorSequenciaDeDerrotas)),
        linha("Última partida", [](const Estatisticas& x) { return textoDoDia(x.ultimoDia); }),
    };
}

std::array<std::vector<PontoDaCurva>, kColunasDoQuadro>
curvasDeAproveitamento(const HistoricoDePartidas& h) {
    std::array<std::vector<PontoDaCurva>, kColunasDoQuadro> curvas;
    const std::size_t inicio =
        h.partidas.size() > kPartidasDaCurva ? h.partidas.size() - kPartidasDaCurva : 0;
    std::array<int, kColunasDoQuadro> jogadas{}, vitorias{};
    for (std::size_t k = inicio; k < h.partidas.size(); ++k) {
        const PartidaDoHistorico& p = h.partidas[k];
        for (std::size_t i = 0; i < kColunasDoQuadro; ++i) {
            if (!daColuna(p, colunasDoQuadro()[i].coluna)) continue;
            ++jogadas[i];
            vitorias[i] += p.venceu;
            curvas[i].push_back(
                {static_cast<int>(k - inicio) + 1, static_cast<double>(vitorias[i]) / jogadas[i]});
        }
    }
    return curvas;
}

std::string resumoDasCurvas(const HistoricoDePartidas& h) {
    const std::size_t n = std::min<std::size_t>(h.partidas.size(), kPartidasDaCurva);
    if (n == 0) return "Nenhuma partida terminada ainda.";
    std::string t =
        n == 1 ? "Na última partida: " : "Nas últimas " + std::to_string(n) + " partidas: ";
    const auto curvas = curvasDeAproveitamento(h);
    bool primeira = true;
    for (std::size_t i = 0; i < kColunasDoQuadro; ++i) {
        if (curvas[i].empty()) continue;
        const int jogadas = static_cast<int>(curvas[i].size());
        const int vitorias = static_cast<int>(std::lround(curvas[i].back().fracao * jogadas));
        t += (primeira ? "" : "; ") + colunasDoQuadro()[i].titulo + ", " +
             porcento(curvas[i].back().fracao) + " (" + std::to_string(vitorias) + " de " +
             std::to_string(jogadas) + ")";
        primeira = false;
    }
    return t + ".";
}

std::string textoDoDia(int dia) {
    using namespace std::chrono;
    const year_month_day d{sys_days{year{2000} / January / 1} + days{dia}};
    char t[16];
    std::snprintf(t, sizeof t, "%02u/%02u/%04d", static_cast<unsigned>(d.day()),
                  static_cast<unsigned>(d.month()), static_cast<int>(d.year()));
    return t;
}

} // namespace corvina
