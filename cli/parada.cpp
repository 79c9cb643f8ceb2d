#include "cli/parada.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <memory>

namespace corvina::cli {

namespace {
std::atomic<bool> gParada{false};
static_assert(std::atomic<bool>::is_always_lock_free, "set from a signal handler");

extern "C" void aoInterromper(int) {
    gParada.store(true);
}

inline constexpr auto kIntervalo = std::chrono::seconds(1);
} // namespace

void instalaParada() {
    struct sigaction acao {};
    acao.sa_handler = aoInterromper;
    sigemptyset(&acao.sa_mask);
    acao.sa_flags = 0; // no restart: a read waiting for the next request ends too
    sigaction(SIGINT, &acao, nullptr);
}

const std::atomic<bool>* sinalDeParada() {
    return &gParada;
}

bool parou() {
    return gParada.load();
}

std::function<void(long, long)> progresso(const char* nome) {
    auto ultimo = std::make_shared<std::chrono::steady_clock::time_point>();
    return [nome, ultimo](long feitos, long total) {
        const auto agora = std::chrono::steady_clock::now();
        if (feitos != total && agora - *ultimo < kIntervalo) return;
        *ultimo = agora;
        std::fprintf(stderr, "%s: %ld/%ld\n", nome, feitos, total);
    };
}

} // namespace corvina::cli
