#pragma once
// A long request (an arena, a self-play) tells how far it got on standard error, and an
// interrupt ends it with the answer for what was played.

#include <atomic>
#include <functional>

namespace corvina::cli {

// Catches SIGINT from now on; the tool stops after the answer in progress.
void instalaParada();
const std::atomic<bool>* sinalDeParada();
bool parou();

// Reports "done/total" on standard error, at most about once a second and at the end.
std::function<void(long, long)> progresso(const char* nome);

} // namespace corvina::cli
