#pragma once
// The table's part of VistaMesa over the plain scene: rows, pile, flights, labels. What only
// the platform can do (message boxes, windows, sound, time, the store) is left to a subclass.

#include "core/jogo.h"
#include "table/cena.h"

namespace corvina {

class VistaDeCena : public VistaMesa {
  public:
    // The game whose hands the rows show; set once the game exists.
    void liga(Jogo& jogo) { jogo_ = &jogo; }
    Cena& cena() { return cena_; }
    const Cena& cena() const { return cena_; }

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

    // The keys moved the focus along the row: paint it, and tell whoever follows it.
    virtual void mudouAFoco() { mudou(); }

  protected:
    // Something on the table changed and wants painting; the screen decides when.
    virtual void mudou() {}
    Jogo& jogo() { return *jogo_; }

  private:
    Figura faceDe(int16 naipe, int16 valor, Figura senao) const;
    Cena cena_;
    Jogo* jogo_ = nullptr;
};

} // namespace corvina
