#include "players/hall_da_fama.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "core/ajustes.h"
#include "core/lote_de_ajustes.h"
#include "players/lista_de_jogadores.h"

namespace corvina {

namespace {
// The balance goes through a 16-bit number: one beyond it stands at its end (32767 or -32768),
// so that a player of a stored 40,000 still heads the hall rather than counting 0.
std::int16_t saldoDe(const std::string& texto) {
    return static_cast<std::int16_t>(std::clamp<long>(numeroDoTexto(texto),
                                                      std::numeric_limits<std::int16_t>::min(),
                                                      std::numeric_limits<std::int16_t>::max()));
}
} // namespace

std::array<LinhaDoHall, kLinhasDoHall> montaHall(const std::vector<JogadorDoHall>& jogadores,
                                                 const std::string& nomeJogador) {
    std::vector<std::int16_t> saldos;
    int maiorSaldo = 0, menorSaldo = 1000; // so the scan covers every balance that exists
    for (const JogadorDoHall& j : jogadores) {
        saldos.push_back(saldoDe(j.saldo));
        if (saldos.back() > maiorSaldo) maiorSaldo = saldos.back();
        if (saldos.back() < menorSaldo) menorSaldo = saldos.back();
    }
    std::array<LinhaDoHall, kLinhasDoHall> linhas;
    std::size_t r = 0;
    for (int s = maiorSaldo; s >= menorSaldo && r < linhas.size(); --s) {
        for (std::size_t j = 0; j < jogadores.size() && r < linhas.size(); ++j) {
            if (saldos[j] != s) continue;
            LinhaDoHall& l = linhas[r++];
            l.nome = jogadores[j].nome;
            l.saldo = std::to_string(saldos[j]);
            l.vitorias = std::to_string(numeroDoTexto(jogadores[j].vitorias));
            l.derrotas = std::to_string(numeroDoTexto(jogadores[j].derrotas));
            l.preenchida = true;
        }
    }
    for (LinhaDoHall& l : linhas) l.verde = l.nome == nomeJogador;
    return linhas;
}

std::array<LinhaDoHall, kLinhasDoHall> montaHall(Armazem& a, const std::string& nomeJogador) {
    std::vector<JogadorDoHall> jogadores;
    for (const std::string& nome : leListaDeJogadores(a)) {
        const std::string chave = chaveJogador(nome);
        jogadores.push_back({nome, a.le(chave, ajuste::kSaldo, ""),
                             a.le(chave, ajuste::kVitorias, ""),
                             a.le(chave, ajuste::kDerrotas, "")});
    }
    return montaHall(jogadores, nomeJogador);
}

void zeraHall(Armazem& a) {
    const LoteDeAjustes lote(a);
    for (const std::string& nome : leListaDeJogadores(a)) {
        const std::string chave = chaveJogador(nome);
        for (const char* valor : {ajuste::kSaldo, ajuste::kVitorias, ajuste::kDerrotas})
            a.grava(chave, valor, "");
    }
}

} // namespace corvina
