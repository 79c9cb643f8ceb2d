#pragma once
// The new-player window as plain state: the name box and what its OK does.

#include <functional>
#include <string>

#include "core/armazem.h"
#include "core/module1.h"

namespace corvina {

inline constexpr std::size_t kLetrasDoNome = 12;

class NovoJogador {
  public:
    struct Arredores {
        // The program's own yes/no box: mensagem, titulo; true on Sim.
        std::function<bool(const std::string&, const std::string&)> simNao;
        // The name joins the list of the choose-player window.
        std::function<void(const std::string&)> adicionaNaLista;
    };

    NovoJogador(Module1& modulo, Armazem& armazem, Arredores arredores);

    // Text1: "Jogador" at loading, all of it selected so that typing replaces it. At most
    // twelve characters as typed.
    const std::string& texto() const { return texto_; }
    void digita(const std::string& texto);

    // OK or Enter. True when the window closes; false when it stays with all the text
    // selected.
    bool ok();
    // Whatever closes the window: what stands in the box is the name at the table.
    void fecha();

  private:
    Module1& modulo_;
    Armazem& armazem_;
    Arredores arredores_;
    std::string texto_;
};

// The first `letras` characters of a UTF-8 text.
std::string primeirasLetras(const std::string& texto, std::size_t letras);

} // namespace corvina
