#pragma once
// A move of the game that may have to wait: a card's flight, a pause, the machine's thought.
// On a view that keeps no time every wait is over at once and the move runs straight through,
// as a plain call; on the screen it stops at the wait, the window's own loop goes on, and the
// view resumes it where it stopped. Nothing else runs the window's events in between.
//
// A Tarefa starts at once. Destroying it before it ends drops the move where it stands, with
// every move it was waiting on.

#include <coroutine>
#include <exception>
#include <optional>
#include <utility>

namespace corvina {

template <class T = void> class Tarefa;

namespace detalhe {

struct PromessaBase {
    std::coroutine_handle<> continuacao; // who waits on this move, if anyone
    bool terminou = false;

    std::suspend_never initial_suspend() noexcept { return {}; }
    struct AoFim {
        bool await_ready() noexcept { return false; }
        template <class P>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<P> h) noexcept {
            h.promise().terminou = true;
            if (auto c = h.promise().continuacao) return c;
            return std::noop_coroutine();
        }
        void await_resume() noexcept {}
    };
    AoFim final_suspend() noexcept { return {}; }
    void unhandled_exception() noexcept { std::terminate(); } // the game's moves raise nothing
};

template <class T> struct Promessa : PromessaBase {
    std::optional<T> valor;
    Tarefa<T> get_return_object() noexcept;
    void return_value(T v) { valor = std::move(v); }
};

template <> struct Promessa<void> : PromessaBase {
    Tarefa<void> get_return_object() noexcept;
    void return_void() noexcept {}
};

} // namespace detalhe

template <class T> class [[nodiscard]] Tarefa {
  public:
    using promise_type = detalhe::Promessa<T>;

    Tarefa(Tarefa&& o) noexcept : h_(std::exchange(o.h_, {})) {}
    Tarefa& operator=(Tarefa&& o) noexcept {
        if (this != &o) {
            solta();
            h_ = std::exchange(o.h_, {});
        }
        return *this;
    }
    Tarefa(const Tarefa&) = delete;
    Tarefa& operator=(const Tarefa&) = delete;
    ~Tarefa() { solta(); }

    bool terminou() const { return !h_ || h_.promise().terminou; }
    // @pre terminou(): the result of a move that has ended.
    T valor() const requires(!std::is_void_v<T>) { return *h_.promise().valor; }

    // Awaited by another move: that one goes on when this one ends.
    bool await_ready() const noexcept { return terminou(); }
    void await_suspend(std::coroutine_handle<> quem) noexcept { h_.promise().continuacao = quem; }
    T await_resume() const {
        if constexpr (!std::is_void_v<T>) return valor();
    }

  private:
    friend struct detalhe::Promessa<T>;
    explicit Tarefa(std::coroutine_handle<promise_type> h) : h_(h) {}
    void solta() {
        if (h_) h_.destroy();
        h_ = {};
    }
    std::coroutine_handle<promise_type> h_;
};

namespace detalhe {
template <class T> Tarefa<T> Promessa<T>::get_return_object() noexcept {
    return Tarefa<T>(std::coroutine_handle<Promessa<T>>::from_promise(*this));
}
inline Tarefa<void> Promessa<void>::get_return_object() noexcept {
    return Tarefa<void>(std::coroutine_handle<Promessa<void>>::from_promise(*this));
}
} // namespace detalhe

// For a view that keeps no time (tests, corvina-cli, self-play): the move has ended on return.
template <class T> T ateOFim(Tarefa<T> t) {
    if (!t.terminou()) std::terminate(); // a view that waits must run the window's loop instead
    if constexpr (!std::is_void_v<T>) return t.valor();
}

} // namespace corvina
