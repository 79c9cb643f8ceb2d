#include "table/cena.h"

#include <algorithm>
#include <stdexcept>

namespace corvina {

namespace {
// Places on the table panel, in twips.
inline constexpr float kEsquerdaMaquina = 210, kTopoMaquina = 45;
inline constexpr float kEsquerdaJogador = 255, kTopoJogador = 4950;
inline constexpr float kPassoDaFila = 1080;
inline constexpr float kEsquerdaCasa10Maquina = 9930, kEsquerdaCasa10Jogador = 9990;
inline constexpr float kEsquerdaMonte = 3840, kTopoMonte = 2520;
inline constexpr float kEsquerdaPilha = 5400, kTopoPilha = 2400;
inline constexpr float kDegrau = 30;
} // namespace

Cena::Cena() {
    gesto.yMao = static_cast<int16>(kTopoJogador);
    for (int i = 1; i <= 10; ++i) {
        Sprite& m = cm_[i];
        m.Left = i == 10 ? kEsquerdaCasa10Maquina : kEsquerdaMaquina + kPassoDaFila * (i - 1);
        m.Top = kTopoMaquina;
        m.Visible = i < 10;
        m.MousePointer = Ponteiro::proibido; // the machine's cards answer to nothing
        Sprite& j = cj_[i];
        j.Left = i == 10 ? kEsquerdaCasa10Jogador : kEsquerdaJogador + kPassoDaFila * (i - 1);
        j.Top = kTopoJogador;
        j.Visible = i < 10;
        j.MousePointer = Ponteiro::mao;
    }
    for (int i = 0; i < 5; ++i) {
        picture3_[i].Left = kEsquerdaMonte - kDegrau * i;
        picture3_[i].Top = kTopoMonte - kDegrau * i;
        picture3_[i].Visible = true;
        picture8_[i].Left = kEsquerdaPilha + kDegrau * i;
        picture8_[i].Top = kTopoPilha + kDegrau * i;
    }
    costas2_.Left = costas_.Left = kEsquerdaMonte;
    costas2_.Top = costas_.Top = kTopoMonte;
    costas2_.Visible = costas_.Visible = true;
    // The back the window was drawn with, kept when a stored back doesn't exist.
    costas_.Picture = figuraDoVerso(kVersoDoDesenho);
    discartado_.Left = discartado2_.Left = kEsquerdaPilha;
    discartado_.Top = discartado2_.Top = kTopoPilha;
    picmover_.MousePointer = Ponteiro::proibido;
    label4_.Enabled = true;

    // Back to front: the stock's edges (0 in front), the stock, the machine's and the
    // player's rows, the fan (4 in front), the top of the pile, the flying card, the mover.
    for (int i = 4; i >= 0; --i) ordem_.push_back({Parte::Picture3, static_cast<int16>(i)});
    ordem_.push_back({Parte::costas});
    ordem_.push_back({Parte::costas2});
    for (int i = 1; i <= 10; ++i) ordem_.push_back({Parte::cm, static_cast<int16>(i)});
    for (int i = 1; i <= 10; ++i) ordem_.push_back({Parte::cj, static_cast<int16>(i)});
    for (int i = 0; i < 5; ++i) ordem_.push_back({Parte::Picture8, static_cast<int16>(i)});
    ordem_.push_back({Parte::Discartado});
    ordem_.push_back({Parte::discartado2});
    ordem_.push_back({Parte::Picmover});
}

Sprite& Cena::operator[](Peca p) {
    return const_cast<Sprite&>(static_cast<const Cena&>(*this)[p]);
}

const Sprite& Cena::operator[](Peca p) const {
    const auto na = [&](const auto& lista, int de) -> const Sprite& {
        const int i = p.indice;
        if (i < de || i >= static_cast<int>(lista.size())) return nenhum_;
        return lista[i];
    };
    switch (p.parte) {
    case Parte::Picmover:
        return picmover_;
    case Parte::discartado2:
        return discartado2_;
    case Parte::Discartado:
        return discartado_;
    case Parte::costas2:
        return costas2_;
    case Parte::costas:
        return costas_;
    case Parte::cj:
        return na(cj_, 1);
    case Parte::cm:
        return na(cm_, 1);
    case Parte::Picture8:
        return na(picture8_, 0);
    case Parte::Picture3:
        return na(picture3_, 0);
    case Parte::Label4:
        return label4_;
    case Parte::Placar1:
        return placar1_;
    case Parte::Placar2:
        return placar2_;
    case Parte::antes:
        return antes_;
    case Parte::vazio:
        return vazio_;
    case Parte::intermediario:
        return intermediario_;
    default:
        return nenhum_; // picture sets have no place
    }
}

Figura Cena::figuraDe(Peca p) const {
    const auto face = [&](int naipe) {
        return p.indice >= 1 && p.indice <= kValores ? figuraDaFace(naipe, p.indice) : kSemFigura;
    };
    switch (p.parte) {
    case Parte::coracao:
        return face(1);
    case Parte::copa:
        return face(2);
    case Parte::espada:
        return face(3);
    case Parte::ramo:
        return face(4);
    case Parte::tipotC:
        return p.indice >= 1 && p.indice <= 8 ? figuraDoVerso(p.indice) : kSemFigura;
    default:
        return (*this)[p].Picture;
    }
}

void Cena::paraFrente(Peca peca) {
    const auto it = std::find(ordem_.begin(), ordem_.end(), peca);
    if (it == ordem_.end()) return;
    ordem_.erase(it);
    ordem_.push_back(peca);
}

} // namespace corvina
