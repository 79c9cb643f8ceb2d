#pragma once
// A table whose sprites are plain data and whose platform does nothing: the handlers of the
// mouse and of the sort button run on it as they run on the screen.

#include <functional>
#include <string>
#include <vector>

#include "apoio/maos.h"
#include "core/armazem_memoria.h"
#include "machine/classico.h"
#include "table/vista_de_cena.h"

namespace corvina::teste {

class VistaDeCenaQuieta : public VistaDeCena {
  public:
    std::vector<std::string> mensagens;
    std::vector<std::string> sons;
    ArmazemMemoria armazem;
    int esperas = 0;

    int caixaMensagem(const std::string& texto, int, const std::string&) override {
        mensagens.push_back(texto);
        return kBotaoOk;
    }
    void preparaPlacar(const Placar&) override {}
    std::function<void(Janela)> aoAbrirJanela = [](Janela) {};
    void abreJanela(Janela j) override { aoAbrirJanela(j); }
    void tocaSom(const std::string& arquivo, bool) override { sons.push_back(arquivo); }
    bool adia(int, std::coroutine_handle<>) override {
        ++esperas;
        return false;
    }
    void processaEventos() override {}
    std::string leAjuste(const std::string& chave, const std::string& nome,
                         const std::string& padrao) override {
        return armazem.le(chave, nome, padrao);
    }
    bool gravaAjuste(const std::string& chave, const std::string& nome,
                     const std::string& valor) override {
        return armazem.grava(chave, nome, valor);
    }
};

struct MesaDeCena {
    explicit MesaDeCena(std::uint64_t semente = 1) : acaso(semente), jogo(vista, acaso, classico) {
        vista.liga(jogo);
        jogo.modulo.velocidade = 6;
        jogo.modulo.animarCartas = true;
    }
    // Both hands, the top of the pile and the stock (its last card drawn first), painted.
    void arma(std::string_view jog, std::string_view mac, std::string_view topo = "9/4",
              std::string_view monte = "1/3 8/3") {
        armaMesa(jogo.mesa, jogo.modulo.qtdDescarte, jog, mac, topo, monte);
        vista.apresentacartasdojog(1, jogo.mesa.qtdJog);
        vista.apresentacartasdamac(1, 0);
        vista.Habilita(true);
    }
    Sprite& sprite(Peca p) { return vista.cena()[p]; }

    AcasoSemente acaso;
    VistaDeCenaQuieta vista;
    Classico classico;
    Jogo jogo;
};

} // namespace corvina::teste
