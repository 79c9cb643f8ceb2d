#include "players/historico_de_partidas.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <vector>

namespace corvina {

namespace {

inline constexpr std::string_view kDigitos = "0123456789abcdefghijklmnopqrstuvwxyz";
inline constexpr int kBase = 36;
inline constexpr int kDigitosDoDia = 3; // 36^3 days: past the year 2127
inline constexpr std::size_t kTamanhoDaEntrada = kDigitosDoDia + 5;
inline constexpr int kMaosDaPartida = 4;
inline constexpr std::size_t kCamposDasAntigas = 9;

char letraDoNivel(TipoNivel n) {
    return dadosDoNivel(n).codigo;
}

int valorDoDigito(char c) {
    const std::size_t i = kDigitos.find(c);
    return i == std::string_view::npos ? -1 : static_cast<int>(i);
}

std::optional<PartidaDoHistorico> leEntrada(std::string_view e) {
    PartidaDoHistorico p;
    for (int i = 0; i < kDigitosDoDia; ++i) {
        const int d = valorDoDigito(e[static_cast<std::size_t>(i)]);
        if (d < 0) return std::nullopt;
        p.dia = p.dia * kBase + d;
    }
    const auto nivel = nivelDoCodigo(e[kDigitosDoDia]);
    const char justa = e[kDigitosDoDia + 1], resultado = e[kDigitosDoDia + 2];
    p.maosGanhas = e[kDigitosDoDia + 3] - '0';
    p.maosPerdidas = e[kDigitosDoDia + 4] - '0';
    if (!nivel || (justa != 'j' && justa != 'n') || (resultado != 'v' && resultado != 'd') ||
        p.maosGanhas < 0 || p.maosGanhas > kMaosDaPartida || p.maosPerdidas < 0 ||
        p.maosPerdidas > kMaosDaPartida)
        return std::nullopt;
    p.nivel = *nivel;
    p.justa = !trocaNaDistribuicao(p.nivel, justa == 'j');
    p.venceu = resultado == 'v';
    return p;
}

std::string escreveEntrada(const PartidaDoHistorico& p) {
    std::string e(kTamanhoDaEntrada, '0');
    int dia = std::clamp(p.dia, 0, kBase * kBase * kBase - 1);
    for (int i = kDigitosDoDia - 1; i >= 0; --i, dia /= kBase)
        e[static_cast<std::size_t>(i)] = kDigitos[static_cast<std::size_t>(dia % kBase)];
    e[kDigitosDoDia] = letraDoNivel(p.nivel);
    e[kDigitosDoDia + 1] = p.justa ? 'j' : 'n';
    e[kDigitosDoDia + 2] = p.venceu ? 'v' : 'd';
    e[kDigitosDoDia + 3] = static_cast<char>('0' + std::clamp(p.maosGanhas, 0, kMaosDaPartida));
    e[kDigitosDoDia + 4] = static_cast<char>('0' + std::clamp(p.maosPerdidas, 0, kMaosDaPartida));
    return e;
}

// A column's folded totals: "c" or "e" or "f", "j" or "n", then nine numbers, all split by ",".
std::string escreveAntigas(const std::array<Estatisticas, kColunasDoHistorico>& antigas) {
    std::string t;
    for (const DadosDoNivel& d : kNiveisDoJogo)
        for (const bool justa : {false, true}) {
            const TipoNivel n = d.tipo;
            const Estatisticas& e = antigas[indiceDaColuna({n, justa})];
            if (e.jogadas == 0) continue;
            if (!t.empty()) t += ';';
            t += letraDoNivel(n);
            t += justa ? 'j' : 'n';
            for (const long v : {e.jogadas, e.vitorias, e.derrotas, e.maosGanhas, e.maosPerdidas,
                                 e.sequencia, e.maiorSequenciaDeVitorias,
                                 e.maiorSequenciaDeDerrotas, static_cast<long>(e.ultimoDia)})
                t += "," + std::to_string(v);
        }
    return t;
}

// Counts within 0..kMaiorContagem that add up, streaks no longer than the matches they run
// along, a day no entry could hold: anything else is hostile, never used.
bool totaisPlausiveis(const std::vector<long>& v) {
    const auto conta = [](long n) { return n >= 0 && n <= kMaiorContagem; };
    const long jogadas = v[0], vitorias = v[1], derrotas = v[2], sequencia = v[5];
    return conta(jogadas) && conta(vitorias) && conta(derrotas) && conta(v[3]) && conta(v[4]) &&
           vitorias + derrotas == jogadas && sequencia >= -derrotas && sequencia <= vitorias &&
           conta(v[6]) && v[6] <= vitorias && conta(v[7]) && v[7] <= derrotas && v[8] >= -1 &&
           v[8] < kBase * kBase * kBase;
}

bool leAntigas(std::string_view t, std::array<Estatisticas, kColunasDoHistorico>& antigas) {
    while (!t.empty()) {
        const std::size_t fim = t.find(';');
        std::string_view coluna = t.substr(0, fim);
        t.remove_prefix(fim == std::string_view::npos ? t.size() : fim + 1);
        if (coluna.size() < 2) return false;
        const auto nivel = nivelDoCodigo(coluna[0]);
        const bool justa = coluna[1] == 'j';
        if (!nivel || (!justa && coluna[1] != 'n')) return false;
        coluna.remove_prefix(2);
        std::vector<long> v;
        while (!coluna.empty()) {
            if (coluna[0] != ',') return false;
            coluna.remove_prefix(1);
            long n = 0;
            const auto [resto, erro] =
                std::from_chars(coluna.data(), coluna.data() + coluna.size(), n);
            if (erro != std::errc()) return false;
            v.push_back(n);
            coluna.remove_prefix(static_cast<std::size_t>(resto - coluna.data()));
        }
        if (v.size() != kCamposDasAntigas || !totaisPlausiveis(v)) return false;
        antigas[indiceDaColuna({*nivel, justa})] = {
            v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], static_cast<int>(v[8])};
    }
    return true;
}

} // namespace

std::size_t indiceDaColuna(ColunaDoHistorico c) {
    return indiceDoNivel(c.nivel) * 2 + (c.justa ? 1 : 0);
}

void Estatisticas::soma(const PartidaDoHistorico& p) {
    // A full column takes no more: its figures stop rather than run over, and still add up.
    if (jogadas >= kMaiorContagem) return;
    const auto mais = [](long& n, long parcela) { n = std::min(n + parcela, kMaiorContagem); };
    ++jogadas;
    ++(p.venceu ? vitorias : derrotas);
    mais(maosGanhas, p.maosGanhas);
    mais(maosPerdidas, p.maosPerdidas);
    if (p.venceu) {
        sequencia = sequencia > 0 ? std::min(sequencia + 1, kMaiorContagem) : 1;
        maiorSequenciaDeVitorias = std::max(maiorSequenciaDeVitorias, sequencia);
    } else {
        sequencia = sequencia < 0 ? std::max(sequencia - 1, -kMaiorContagem) : -1;
        maiorSequenciaDeDerrotas = std::max(maiorSequenciaDeDerrotas, -sequencia);
    }
    ultimoDia = std::max(ultimoDia, p.dia);
}

double Estatisticas::fracaoDeVitorias() const {
    return jogadas == 0 ? 0.0 : static_cast<double>(vitorias) / static_cast<double>(jogadas);
}

void HistoricoDePartidas::registra(const PartidaDoHistorico& p) {
    partidas.push_back(p);
    // Fair is what the deal was: a level that never exchanges the hands deals fairly, whatever
    // the player had ticked.
    partidas.back().justa = !trocaNaDistribuicao(p.nivel, p.justa);
    while (partidas.size() > kPartidasNoHistorico) {
        const PartidaDoHistorico& velha = partidas.front();
        antigas[indiceDaColuna({velha.nivel, velha.justa})].soma(velha);
        partidas.pop_front();
    }
}

Estatisticas HistoricoDePartidas::estatisticas(ColunaDoHistorico c) const {
    Estatisticas e = antigas[indiceDaColuna(c)];
    for (const PartidaDoHistorico& p : partidas)
        if (p.nivel == c.nivel && p.justa == c.justa) e.soma(p);
    return e;
}

TextoDoHistorico escreveHistorico(const HistoricoDePartidas& h) {
    TextoDoHistorico t;
    t.partidas.reserve(h.partidas.size() * kTamanhoDaEntrada);
    for (const PartidaDoHistorico& p : h.partidas) t.partidas += escreveEntrada(p);
    t.antigas = escreveAntigas(h.antigas);
    return t;
}

std::optional<HistoricoDePartidas> leHistorico(std::string_view partidas,
                                               std::string_view antigas) {
    HistoricoDePartidas h;
    if (partidas.size() % kTamanhoDaEntrada != 0 ||
        partidas.size() / kTamanhoDaEntrada > kPartidasNoHistorico)
        return std::nullopt;
    for (std::size_t i = 0; i < partidas.size(); i += kTamanhoDaEntrada) {
        const auto p = leEntrada(partidas.substr(i, kTamanhoDaEntrada));
        if (!p) return std::nullopt;
        h.partidas.push_back(*p);
    }
    if (!leAntigas(antigas, h.antigas)) return std::nullopt;
    return h;
}

int diaDoHistorico(int ano, int mes, int dia) {
    using namespace std::chrono;
    const sys_days d{year{ano} / month{static_cast<unsigned>(mes)} /
                     day{static_cast<unsigned>(dia)}};
    return std::max(0, static_cast<int>((d - sys_days{year{2000} / January / 1}).count()));
}

} // namespace corvina
