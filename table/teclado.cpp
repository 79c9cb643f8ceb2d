#include "table/teclado.h"

#include "table/assenta.h"

namespace corvina {

std::optional<Jogada> jogadaDaTecla(Tecla tecla, int16 foco) {
    switch (tecla) {
    case Tecla::Baralho:
        return Jogada{Acao::Comprar};
    case Tecla::Pilha:
        return Jogada{Acao::PegarDescarte};
    case Tecla::Descartar:
        return Jogada{Acao::Descartar, foco};
    case Tecla::CartaAEsquerda:
        return Jogada{Acao::Mover, foco, static_cast<int16>(foco - 1)};
    case Tecla::CartaADireita:
        return Jogada{Acao::Mover, foco, static_cast<int16>(foco + 1)};
    case Tecla::Ordenar:
        return Jogada{Acao::Ordenar};
    default:
        return std::nullopt;
    }
}

void focaCasa(Jogo& jogo, VistaDeCena& v, int16 casa) {
    if (casa >= 1 && casa <= jogo.mesa.qtdJog) focaCarta(jogo, v, casa);
}

void teclaNaMesa(Condutor& condutor, Jogo& jogo, VistaDeCena& v, Tecla tecla) {
    condutor.assenta();
    const int foco = v.cena().foco;
    const int q = jogo.mesa.qtdJog;
    if (const auto c = jogadaDaTecla(tecla, static_cast<int16>(foco))) {
        condutor.executa(*c);
        return;
    }
    if (q < 1) return;
    switch (tecla) {
    case Tecla::Esquerda:
        return focaCarta(jogo, v, static_cast<int16>(foco == 0 ? q : (foco + q - 2) % q + 1));
    case Tecla::Direita:
        return focaCarta(jogo, v, static_cast<int16>(foco == 0 ? 1 : foco % q + 1));
    case Tecla::Primeira:
        return focaCarta(jogo, v, 1);
    case Tecla::Ultima:
        return focaCarta(jogo, v, static_cast<int16>(q));
    case Tecla::Solta:
        if (foco != 0) focaCarta(jogo, v, 0);
        return;
    default:
        return;
    }
}

} // namespace corvina
