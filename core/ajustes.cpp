#include "core/ajustes.h"

#include <cctype>
#include <limits>

namespace corvina {

std::string chaveBase() {
    return std::string("Software\\Lunaris\\") + kTitulo;
}

std::string chaveJogador(std::string_view nome) {
    // A key with a trailing separator is the key itself: an empty name's record is the base's.
    if (nome.empty()) return chaveBase();
    return chaveBase() + "\\" + std::string(nome);
}

std::string ajuste::jogador(int n) {
    return "Jogador" + std::to_string(n);
}

long numeroDoTexto(std::string_view texto) {
    std::size_t i = 0;
    while (i < texto.size() && (texto[i] == ' ' || texto[i] == '\t')) ++i;
    bool negativo = false;
    if (i < texto.size() && (texto[i] == '-' || texto[i] == '+')) negativo = texto[i++] == '-';
    long valor = 0;
    constexpr long kTeto = std::numeric_limits<long>::max() / 10 - 9;
    for (; i < texto.size() && std::isdigit(static_cast<unsigned char>(texto[i])); ++i) {
        if (valor > kTeto) break; // a text of absurd length stops counting; nothing overflows
        valor = valor * 10 + (texto[i] - '0');
    }
    return negativo ? -valor : valor;
}

bool booleanoDoTexto(std::string_view texto) {
    const std::string dobrado = dobraCaixa(texto);
    if (dobrado == "true") return true;
    if (dobrado == "false" || texto.empty()) return false;
    std::size_t i = texto[0] == '-' || texto[0] == '+' ? 1 : 0;
    if (i == texto.size()) return false;
    for (; i < texto.size(); ++i)
        if (!std::isdigit(static_cast<unsigned char>(texto[i]))) return false;
    return numeroDoTexto(texto) != 0;
}

std::string padraoDeLeitura(std::string_view padrao) {
    return dobraCaixa(padrao) == "true" ? "1" : std::string(padrao);
}

std::string dobraCaixa(std::string_view texto) {
    std::string saida(texto);
    for (std::size_t i = 0; i < saida.size(); ++i) {
        const auto c = static_cast<unsigned char>(saida[i]);
        if (c >= 'A' && c <= 'Z') {
            saida[i] = static_cast<char>(c + ('a' - 'A'));
        } else if (c == 0xC3 && i + 1 < saida.size()) {
            // UTF-8 for U+00C0..U+00DE: the accented capitals, but for the sign of times.
            const auto d = static_cast<unsigned char>(saida[i + 1]);
            if (d >= 0x80 && d <= 0x9E && d != 0x97) saida[i + 1] = static_cast<char>(d + 0x20);
            ++i;
        }
    }
    return saida;
}

} // namespace corvina
