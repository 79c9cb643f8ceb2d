#include "core/carta.h"

#include <charconv>

namespace corvina {

namespace {

std::optional<int16> lerNumero(std::string_view texto) {
    if (texto.empty() || texto.size() > 2) return std::nullopt;
    int valor = 0;
    const auto [fim, erro] = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
    if (erro != std::errc{} || fim != texto.data() + texto.size()) return std::nullopt;
    return static_cast<int16>(valor);
}

} // namespace

std::optional<Carta> lerCarta(std::string_view texto) {
    const auto barra = texto.find('/');
    if (barra == std::string_view::npos) return std::nullopt;
    const auto valor = lerNumero(texto.substr(0, barra));
    const auto naipe = lerNumero(texto.substr(barra + 1));
    if (!valor || !naipe) return std::nullopt;
    const Carta carta{*valor, *naipe};
    if (!cartaValida(carta)) return std::nullopt;
    return carta;
}

std::string escreveCarta(Carta c) {
    return std::to_string(c.valor) + "/" + std::to_string(c.naipe);
}

std::optional<std::vector<Carta>> lerCartas(std::string_view texto) {
    std::vector<Carta> cartas;
    std::size_t pos = 0;
    while (pos < texto.size()) {
        if (texto[pos] == ' ') {
            ++pos;
            continue;
        }
        const auto fim = std::min(texto.find(' ', pos), texto.size());
        const auto carta = lerCarta(texto.substr(pos, fim - pos));
        if (!carta) return std::nullopt;
        cartas.push_back(*carta);
        pos = fim;
    }
    return cartas;
}

std::string escreveCartas(const std::vector<Carta>& cartas) {
    std::string texto;
    for (const auto& c : cartas) {
        if (!texto.empty()) texto += ' ';
        texto += escreveCarta(c);
    }
    return texto;
}

std::string nomeDaCarta(Carta c) {
    constexpr const char* kValor[] = {"?",    "ás",   "dois", "três", "quatro", "cinco", "seis",
                                      "sete", "oito", "nove", "dez",  "valete", "dama",  "rei"};
    constexpr const char* kNaipe[] = {"?", "copas", "paus", "ouros", "espadas"};
    if (!cartaValida(c)) return "?";
    return std::string(kValor[c.valor]) + " de " + kNaipe[c.naipe];
}

std::string nomeDaCartaComArtigo(Carta c) {
    constexpr int16 kDama = 12; // the one value whose name is feminine
    return (c.valor == kDama ? "a " : "o ") + nomeDaCarta(c);
}

} // namespace corvina
