#pragma once
// A view that draws nothing: whole matches run through it in tests and in corvina-cli.
// It can keep a line for every call, and answers message boxes and windows from a script.

#include <functional>
#include <string>
#include <vector>

#include "core/armazem_memoria.h"
#include "core/vista_mesa.h"

namespace corvina {

class VistaNula : public VistaMesa {
  public:
    bool registra = false; // keep a line per call in `chamadas`
    std::vector<std::string> chamadas;
    ArmazemMemoria armazem;                             // the store, in memory
    std::function<void()> aCadaChamada;                 // runs at every call, first
    std::function<void(Janela)> aoAbrirJanela;          // the windows' part; none by default
    std::function<int(const std::string&)> aoPerguntar; // a message box; OK by default
    std::function<void(const Placar&)> aoPrepararPlacar;

    void apresentacartasdojog(int16 inicio, int16 fim) override;
    void apresentacartasdamac(int16 most, int16 mostraesta) override;
    void destaca(int16 index) override;
    void MostraDiscarts() override;
    void Habilita(bool h) override;
    void Premover(int16 index) override;
    Tarefa<> voaCarta(Peca sprite, float alvoLeft, float alvoTop, double fator) override;
    void aplicaContorno(Peca sprite, std::uint32_t corChave) override;
    void mostraPeca(Peca peca, bool visivel) override;
    void habilitaPeca(Peca peca, bool habilitada) override;
    void ponteiro(Peca peca, Ponteiro p) override;
    void copiaFigura(Peca destino, Peca origem) override;
    Lugar lugar(Peca peca) override;
    void poeLugar(Peca peca, Lugar lugar) override;
    void mostraPrompt(const std::string& texto) override;
    void mostraAviso(const std::string& texto) override;
    void escondeAviso() override;
    void mostraTrincas(const std::string& texto) override;
    void mostraPlacar(int16 jog, int16 mac) override;
    void mostraContagens(std::optional<int16> jog, std::optional<int16> mac) override;
    void mostraMesa() override;
    void legendaOrdenar(const std::string& texto) override;
    int caixaMensagem(const std::string& texto, int estilo, const std::string& titulo) override;
    void preparaPlacar(const Placar& placar) override;
    void abreJanela(Janela janela) override;
    void tocaSom(const std::string& arquivo, bool aguarda) override;
    bool adia(int milissegundos, std::coroutine_handle<> retomada) override;
    void processaEventos() override;
    std::string leAjuste(const std::string& chave, const std::string& nome,
                         const std::string& padrao) override;
    bool gravaAjuste(const std::string& chave, const std::string& nome,
                     const std::string& valor) override;
    void abreLote() override { armazem.abreLote(); }
    void fechaLote() override { armazem.fechaLote(); }

    // The lines kept that begin with this text.
    std::vector<std::string> chamadasDe(const std::string& inicio) const;

  private:
    // The line is written only when it is kept: a long self-play keeps none.
    void anota(const std::function<std::string()>& linha);
};

const char* nomeDaJanela(Janela janela);
std::string nomeDaPeca(Peca peca);

} // namespace corvina
