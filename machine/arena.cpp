#include "machine/arena.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <exception>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

#include "core/novojogo.h"
#include "core/textos.h"
#include "core/vista_nula.h"
#include "machine/autojogador.h"
#include "machine/nivel_de_busca.h"
#include "machine/vidente.h"

namespace corvina {

namespace {

inline constexpr long kTurnosPorMaoNoMaximo = 1000; // a hand from the stock lasts under 100

constexpr bool decidida(Vencedor v) {
    return v == Vencedor::Jog || v == Vencedor::Mac;
}
inline constexpr double kZ95 = 1.959964;
inline constexpr double kPercentil = 0.99;

// Times every decision of the level it stands for.
class NivelCronometrado : public Nivel {
  public:
    NivelCronometrado(Nivel& nivel, std::vector<float>& ms) : nivel_(nivel), ms_(ms) {}
    bool pegaDescarte(const VisaoDoNivel& v) override {
        const auto inicio = std::chrono::steady_clock::now();
        const bool r = nivel_.pegaDescarte(v);
        anota(inicio);
        return r;
    }
    int16 descarte(const VisaoDoNivel& v, bool doDescarte) override {
        const auto inicio = std::chrono::steady_clock::now();
        const int16 r = nivel_.descarte(v, doDescarte);
        anota(inicio);
        return r;
    }

  private:
    void anota(std::chrono::steady_clock::time_point inicio) {
        ms_.push_back(
            std::chrono::duration<float, std::milli>(std::chrono::steady_clock::now() - inicio)
                .count());
    }
    Nivel& nivel_;
    std::vector<float>& ms_;
};

struct Par {
    bool feito = false;
    Vencedor aNaFrente = Vencedor::Ninguem; // a in the player's seat
    Vencedor bNaFrente = Vencedor::Ninguem; // b in the player's seat
};

struct Tempos {
    std::vector<float> a, b;
};

std::unique_ptr<Nivel> criaAssento(const Assento& a) {
    switch (a.analise) {
    case Assento::Analise::Vidente:
        return std::make_unique<Vidente>();
    case Assento::Analise::Busca:
        return std::make_unique<NivelDeBusca>(Orcamento{.ms = a.ms});
    case Assento::Analise::Nenhuma:
        break;
    }
    return criaNivel(a.nivel);
}

// Shows the dealt table to the seer in `lado`, if a seer sits there.
void mostraAoVidente(Nivel& n, const Jogo& jogo, Lado lado) {
    if (auto* v = dynamic_cast<Vidente*>(&n)) v->ve(jogo, lado);
}

Par jogaPar(const PedidoArena& p, long i, Tempos& t) {
    const std::uint64_t semente = sementeDoPar(p.semente, i);
    const auto la = criaAssento(p.a), lb = criaAssento(p.b);
    NivelCronometrado a(*la, t.a), b(*lb, t.b);
    const auto mostra = [](Nivel& jog, Nivel& mac) {
        return [&jog, &mac](const Jogo& jogo) {
            mostraAoVidente(jog, jogo, Lado::Jog);
            mostraAoVidente(mac, jogo, Lado::Mac);
        };
    };
    Par r;
    r.aNaFrente = jogaUmaMao(a, b, semente, mostra(*la, *lb));
    r.bNaFrente = jogaUmaMao(b, a, semente, mostra(*lb, *la));
    r.feito = true;
    return r;
}

// Matches of one seat's run of hands, first to 4; a match left unfinished counts for nobody.
void contaPartidas(const std::vector<Vencedor>& maos, bool aEhJog, ResultadoArena& r) {
    int a = 0, b = 0;
    for (const Vencedor v : maos) {
        if (!decidida(v)) continue;
        ++((v == Vencedor::Jog) == aEhJog ? a : b);
        if (a == kPontosDaPartida || b == kPontosDaPartida) {
            ++(a == kPontosDaPartida ? r.partidasA : r.partidasB);
            a = b = 0;
        }
    }
}

void poeTempos(std::vector<float>& ms, double& media, double& p99) {
    if (ms.empty()) return;
    double soma = 0;
    for (const float x : ms) soma += x;
    media = soma / static_cast<double>(ms.size());
    const auto k = static_cast<std::size_t>(kPercentil * static_cast<double>(ms.size() - 1));
    std::nth_element(ms.begin(), ms.begin() + static_cast<std::ptrdiff_t>(k), ms.end());
    p99 = ms[k];
}

} // namespace

std::uint64_t sementeDoPar(std::uint64_t semente, long i) {
    std::uint64_t z = semente * 0x9e3779b97f4a7c15ULL + static_cast<std::uint64_t>(i) + 1;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}

Vencedor jogaUmaMao(Nivel& jog, Nivel& mac, std::uint64_t semente,
                    const std::function<void(const Jogo&)>& aoDar) {
    VistaNula vista;
    AcasoSemente acaso(semente);
    Jogo jogo(vista, acaso, mac);
    jogo.modulo.tocarSom = false;
    jogo.modulo.distribuicaoJusta = true;
    jogo.modulo.nomeJogador = "Arena";
    std::optional<Vencedor> fim;
    vista.aoPrepararPlacar = [&fim](const Placar& p) {
        if (!fim) fim = p.pontosJog > 0 ? Vencedor::Jog : Vencedor::Mac;
    };
    vista.aoPerguntar = [&fim](const std::string& texto) {
        if (!fim && (texto == texto::kAcabouBaralhoJog || texto == texto::kAcabouBaralhoMac))
            fim = Vencedor::Ninguem;
        return kBotaoOk;
    };
    novojogo(jogo);
    if (aoDar) aoDar(jogo);
    for (long turnos = 0; !fim; ++turnos) {
        if (turnos > kTurnosPorMaoNoMaximo) return Vencedor::SemFim;
        jogaPeloJogador(jogo, jog);
    }
    return *fim;
}

ResultadoArena arena(const PedidoArena& p, const std::atomic<bool>* parar,
                     const std::function<void(long, long)>& progresso) {
    std::vector<Par> pares(static_cast<std::size_t>(std::max(p.pares, 0L)));
    std::atomic<long> proximo{0}, feitos{0};
    std::mutex trava;
    std::vector<Tempos> tempos(static_cast<std::size_t>(std::max(p.threads, 1)));
    std::exception_ptr erro;
    const auto trabalha = [&](Tempos& t) {
        try {
            for (long i = proximo++; i < p.pares; i = proximo++) {
                if (parar && parar->load()) return;
                pares[static_cast<std::size_t>(i)] = jogaPar(p, p.primeiro + i, t);
                const long n = ++feitos;
                if (progresso) {
                    const std::lock_guard<std::mutex> l(trava);
                    progresso(n, p.pares);
                }
            }
        } catch (...) {
            const std::lock_guard<std::mutex> l(trava);
            erro = std::current_exception();
        }
    };
    std::vector<std::thread> outras;
    for (std::size_t k = 1; k < tempos.size(); ++k) {
        try {
            outras.emplace_back(trabalha, std::ref(tempos[k]));
        } catch (const std::system_error&) {
            break; // no more threads to be had: those that started share the pairs
        }
    }
    trabalha(tempos[0]);
    for (std::thread& th : outras) th.join();
    if (erro) std::rethrow_exception(erro);

    ResultadoArena r;
    r.threads = static_cast<int>(outras.size()) + 1;
    std::vector<Vencedor> comAFrente, comBFrente;
    for (const Par& par : pares) {
        if (!par.feito) {
            r.interrompida = true;
            continue;
        }
        ++r.pares;
        comAFrente.push_back(par.aNaFrente);
        comBFrente.push_back(par.bNaFrente);
        for (const Vencedor v : {par.aNaFrente, par.bNaFrente}) {
            r.semVencedor += !decidida(v);
            r.semFim += v == Vencedor::SemFim;
        }
        r.maosA += (par.aNaFrente == Vencedor::Jog) + (par.bNaFrente == Vencedor::Mac);
        r.maosB += (par.aNaFrente == Vencedor::Mac) + (par.bNaFrente == Vencedor::Jog);
    }
    contaPartidas(comAFrente, true, r);
    contaPartidas(comBFrente, false, r);
    const double n = static_cast<double>(r.maosA + r.maosB);
    if (n > 0) {
        // The two hands of a pair share their deal, so the pair is the unit: the share is a
        // ratio of sums over pairs, its variance taken from each pair's departure from it.
        const double q = static_cast<double>(r.maosA) / n;
        double desvios = 0;
        for (const Par& par : pares) {
            if (!par.feito) continue;
            const int ganhas = (par.aNaFrente == Vencedor::Jog) + (par.bNaFrente == Vencedor::Mac);
            const int decididas = decidida(par.aNaFrente) + decidida(par.bNaFrente);
            const double d = ganhas - q * decididas;
            desvios += d * d;
        }
        const double meia = kZ95 * std::sqrt(desvios) / n;
        r.shareA = q;
        r.ciLow = std::max(0.0, q - meia);
        r.ciHigh = std::min(1.0, q + meia);
    }
    std::vector<float> ta, tb;
    for (Tempos& t : tempos) {
        ta.insert(ta.end(), t.a.begin(), t.a.end());
        tb.insert(tb.end(), t.b.begin(), t.b.end());
    }
    poeTempos(ta, r.msMeanA, r.msP99A);
    poeTempos(tb, r.msMeanB, r.msP99B);
    return r;
}

} // namespace corvina
