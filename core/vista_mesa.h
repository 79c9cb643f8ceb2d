#pragma once
// Everything the game needs from the outside: the screen, time, sound and the store.
// Called on the one thread of the game. A call returns when its work is done, except the waits
// (a flight, a pause, the machine's thought), which the game awaits: the view may let the
// window's own loop run meanwhile and resume the game where it stopped.

#include <coroutine>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/carta.h"
#include "core/nivel.h"
#include "core/recorde.h"
#include "core/registro_da_mao.h"
#include "core/tarefa.h"

namespace corvina {

// The pictures of the table that the game names. Holders (antes, vazio, intermediario) and the
// picture sets (faces, backs) only give and take pictures; the others also have a place.
enum class Parte : std::uint8_t {
    Picmover,
    discartado2,
    Discartado,
    costas2,
    costas,
    cj,       // the player's slots 1..10
    cm,       // the machine's slots 1..10
    Picture8, // the fan of the pile 0..4
    Picture3, // the edge of the stock 0..4
    Label4,   // the sort button
    Placar1,
    Placar2,
    antes,
    vazio,
    intermediario,
    coracao, // faces by value 1..13, one set per suit
    copa,
    espada,
    ramo,
    tipotC, // the card backs 1..8
};

struct Peca {
    Parte parte;
    int16 indice = 0;
    friend constexpr bool operator==(const Peca&, const Peca&) = default;
};

// Place of a sprite in twips (15 to the pixel).
struct Lugar {
    float left = 0;
    float top = 0;
};

enum class Ponteiro : int16 { padrao = 0, proibido = 12, mao = 99 };

// FrmNivel, the opponent's level and the fair deal, opens from the table only.
enum class Janela { FrmPlacar, FrmNome, FrmOpc, FrmRecords, frmtipos, FrmSobre, FrmNivel };

// Message box styles and the button it answers with.
inline constexpr int kEstiloSimples = 0;
inline constexpr int kEstiloSimNao = 4;
inline constexpr int kEstiloInformacao = 64;
inline constexpr int kBotaoOk = 1;
inline constexpr int kBotaoSim = 6;
inline constexpr int kBotaoNao = 7;

inline constexpr std::uint32_t kCorDaMesa = 0x408215; // 0xBBGGRR, the key of card outlines

// What the final-score window shows when it opens.
struct Placar {
    std::string manchete;
    int16 pontosJog = 0;
    int16 pontosMac = 0;
    bool pisca = false; // Timer1: the names and points blink, a match was won
};

// A match played to its end, as the player's history keeps it.
struct FimDaPartida {
    std::string nome;
    TipoNivel nivel = TipoNivel::Classico;
    bool justa = false;
    bool venceu = false;
    int maosGanhas = 0, maosPerdidas = 0;
    Recorde recorde; // the player's record with this match, as the store is to hold it
    std::vector<RegistroDaMao> maos; // the match's hands, move by move
};

struct PartidaGuardada;

class Pausa;
template <class T> class Pensamento;
class VistaMesa;

// The record of a match's end in the store, in one write.
void gravaRecorde(VistaMesa& v, const FimDaPartida& fim);

class VistaMesa {
  public:
    virtual ~VistaMesa() = default;

    // The rows, the pile and the means of play.
    virtual void apresentacartasdojog(int16 inicio, int16 fim) = 0;
    virtual void apresentacartasdamac(int16 most, int16 mostraesta) = 0;
    virtual void destaca(int16 index) = 0;
    virtual void MostraDiscarts() = 0;
    virtual void Habilita(bool h) = 0;
    virtual void Premover(int16 index) = 0;
    virtual Tarefa<> voaCarta(Peca sprite, float alvoLeft, float alvoTop, double fator) = 0;
    virtual void aplicaContorno(Peca sprite, std::uint32_t corChave) = 0;

    // Fields of single sprites, as the procedures of the table set them.
    virtual void mostraPeca(Peca peca, bool visivel) = 0;
    virtual void habilitaPeca(Peca peca, bool habilitada) = 0;
    virtual void ponteiro(Peca peca, Ponteiro p) = 0;
    virtual void copiaFigura(Peca destino, Peca origem) = 0;
    virtual Lugar lugar(Peca peca) = 0;
    virtual void poeLugar(Peca peca, Lugar lugar) = 0;

    // Texts of the table.
    virtual void mostraPrompt(const std::string& texto) = 0;
    virtual void mostraAviso(const std::string& texto) = 0;
    virtual void escondeAviso() = 0;
    virtual void mostraTrincas(const std::string& texto) = 0;
    virtual void mostraPlacar(int16 jog, int16 mac) = 0;
    virtual void mostraContagens(std::optional<int16> jog, std::optional<int16> mac) = 0;
    virtual void mostraMesa() = 0;
    virtual void legendaOrdenar(const std::string& texto) = 0;

    // Windows. An empty title is the program's own.
    virtual int caixaMensagem(const std::string& texto, int estilo, const std::string& titulo) = 0;
    virtual void preparaPlacar(const Placar& placar) = 0;
    virtual void abreJanela(Janela janela) = 0;

    // Sound and time. A sound name starts with a backslash: "\cart1.wav".
    virtual void tocaSom(const std::string& arquivo, bool aguarda) = 0;
    // A pause the game awaits: co_await vista.espera(100).
    Pausa espera(int milissegundos);
    virtual void processaEventos() = 0;

    // The waits, as the view keeps them. `adia` returns false when the view keeps no time: the
    // game goes on at once. Otherwise the view resumes `retomada` once the time has passed.
    virtual bool adia(int milissegundos, std::coroutine_handle<> retomada) = 0;
    // `trabalho` is a decision of the machine, on copies of what it may see. A view may run it
    // elsewhere and resume `retomada` when it is done (true), or run it here (false).
    virtual bool pensa(const std::function<void()>& trabalho, std::coroutine_handle<> retomada) {
        (void)retomada;
        trabalho();
        return false;
    }
    // A wait whose move was dropped (the window closed): `retomada` must not be resumed.
    virtual void esquece(std::coroutine_handle<> retomada) { (void)retomada; }

    // The store: text values under keys.
    virtual std::string leAjuste(const std::string& chave, const std::string& nome,
                                 const std::string& padrao) = 0;
    virtual bool gravaAjuste(const std::string& chave, const std::string& nome,
                             const std::string& valor) = 0;
    // Several values stored as one write (see Armazem::abreLote).
    virtual void abreLote() {}
    virtual void fechaLote() {}
    // A match ended (a side reached 4 points): the record goes to the store, and wherever the
    // view keeps the history, the match goes there with it, as one.
    virtual void partidaTerminada(const FimDaPartida& fim) { gravaRecorde(*this, fim); }
    // The match a player left in its middle, when one is kept that can be played on; and
    // dropped for good (the player began another).
    virtual bool partidaGuardada(const std::string& nome, PartidaGuardada& partida) {
        (void)nome;
        (void)partida;
        return false;
    }
    virtual void esquecePartida(const std::string& nome) { (void)nome; }
};

// The awaitable of a pause.
class Pausa {
  public:
    Pausa(VistaMesa& v, int milissegundos) : v_(v), ms_(milissegundos) {}
    Pausa(const Pausa&) = delete;
    Pausa& operator=(const Pausa&) = delete;
    ~Pausa() {
        if (h_) v_.esquece(h_);
    }
    bool await_ready() const noexcept { return false; }
    bool await_suspend(std::coroutine_handle<> h) {
        if (!v_.adia(ms_, h)) return false;
        h_ = h;
        return true;
    }
    void await_resume() noexcept { h_ = {}; }

  private:
    VistaMesa& v_;
    int ms_;
    std::coroutine_handle<> h_;
};

inline Pausa VistaMesa::espera(int milissegundos) {
    return Pausa(*this, milissegundos);
}

// The awaitable of a decision of the machine. `decide` may run on another thread: it must hold
// copies of what it reads, or references to what outlives the view.
template <class T> class Pensamento {
  public:
    Pensamento(VistaMesa& v, std::function<T()> decide)
        : v_(v), resposta_(std::make_shared<std::optional<T>>()),
          trabalho_([r = resposta_, d = std::move(decide)] { *r = d(); }) {}
    Pensamento(const Pensamento&) = delete;
    Pensamento& operator=(const Pensamento&) = delete;
    ~Pensamento() {
        if (h_) v_.esquece(h_);
    }
    bool await_ready() const noexcept { return false; }
    bool await_suspend(std::coroutine_handle<> h) {
        if (!v_.pensa(trabalho_, h)) return false;
        h_ = h;
        return true;
    }
    T await_resume() {
        h_ = {};
        return **resposta_;
    }

  private:
    VistaMesa& v_;
    std::shared_ptr<std::optional<T>> resposta_; // shared with a thought that may outlive this
    std::function<void()> trabalho_;
    std::coroutine_handle<> h_;
};

} // namespace corvina
