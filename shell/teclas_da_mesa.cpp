#include "shell/teclas_da_mesa.h"

namespace corvina {

namespace {
// The keys of the play: B the stock (baralho), P the pile, O the sort; Enter or Space discards.
constexpr int kTeclaBaralho = Qt::Key_B, kTeclaPilha = Qt::Key_P, kTeclaOrdenar = Qt::Key_O;
} // namespace

std::optional<Tecla> teclaDaMesa(const QKeyEvent& e) {
    const auto mods = e.modifiers() & ~Qt::KeypadModifier;
    const bool nada = mods == Qt::NoModifier, shift = mods == Qt::ShiftModifier;
    const auto so = [&](Tecla t) { return nada ? std::optional(t) : std::nullopt; };
    switch (e.key()) {
    case Qt::Key_Left:
        return shift ? std::optional(Tecla::CartaAEsquerda) : so(Tecla::Esquerda);
    case Qt::Key_Right:
        return shift ? std::optional(Tecla::CartaADireita) : so(Tecla::Direita);
    case Qt::Key_Home:
        return so(Tecla::Primeira);
    case Qt::Key_End:
        return so(Tecla::Ultima);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return so(Tecla::Descartar);
    case Qt::Key_Escape:
        return so(Tecla::Solta);
    case kTeclaBaralho:
        return so(Tecla::Baralho);
    case kTeclaPilha:
        return so(Tecla::Pilha);
    case kTeclaOrdenar:
        return so(Tecla::Ordenar);
    default:
        return std::nullopt;
    }
}

} // namespace corvina
