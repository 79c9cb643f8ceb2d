#include "machine/partida_em_texto.h"

#include "machine/niveis.h"

namespace corvina {

namespace {
inline constexpr std::string_view kCabeca = "corvina-partida 1";
inline constexpr std::size_t kMaisMaos = 64; // hands of one match, with every spent stock

// "rotulo valor": the value, when the line is that.
std::optional<std::string_view> campo(Linhas& linhas, std::string_view rotulo) {
    const auto linha = linhas.proxima();
    if (!linha || linha->size() <= rotulo.size() + 1 || !linha->starts_with(rotulo) ||
        (*linha)[rotulo.size()] != ' ')
        return std::nullopt;
    return linha->substr(rotulo.size() + 1);
}

std::optional<int16> digito(std::string_view t, int maior) {
    if (t.size() != 1 || t[0] < '0' || t[0] - '0' > maior) return std::nullopt;
    return static_cast<int16>(t[0] - '0');
}

std::optional<std::vector<RegistroDaMao>> blocos(Linhas& linhas) {
    const auto n = campo(linhas, "maos");
    if (!n || n->empty() || n->size() > 2) return std::nullopt;
    std::size_t quantas = 0;
    for (const char c : *n) {
        if (c < '0' || c > '9') return std::nullopt;
        quantas = quantas * 10 + static_cast<std::size_t>(c - '0');
    }
    if (quantas > kMaisMaos) return std::nullopt;
    std::vector<RegistroDaMao> maos;
    for (std::size_t i = 0; i < quantas; ++i) {
        auto r = leRegistro(linhas);
        if (!r) return std::nullopt;
        maos.push_back(std::move(*r));
    }
    return maos;
}
} // namespace

std::string escreveMaos(const std::vector<RegistroDaMao>& maos) {
    std::string t = "maos " + std::to_string(maos.size()) + "\n";
    for (const RegistroDaMao& r : maos) t += escreveRegistro(r);
    return t;
}

std::optional<std::vector<RegistroDaMao>> leMaos(std::string_view texto) {
    if (texto.size() > kMaiorPartidaEmTexto) return std::nullopt;
    Linhas linhas(texto);
    auto maos = blocos(linhas);
    return maos && linhas.acabou() ? maos : std::nullopt;
}

std::string escrevePartida(const PartidaGuardada& p) {
    std::string t(kCabeca);
    t += "\njogador " + p.nome + "\nnivel " + std::string(dadosDoNivel(p.nivel).chave) +
         "\njusta " + (p.justa ? "1" : "0") + "\nplacar " + std::to_string(p.pontosJog) + " " +
         std::to_string(p.pontosMac) + "\n";
    t += escreveMaos(p.maos) + "atual\n" + escreveRegistro(p.atual);
    return t + "ordem " + escreveCartas(p.ordem) + "\n";
}

std::optional<PartidaGuardada> lePartida(std::string_view texto) {
    if (texto.size() > kMaiorPartidaEmTexto) return std::nullopt;
    Linhas linhas(texto);
    if (linhas.proxima() != kCabeca) return std::nullopt;
    PartidaGuardada p;
    const auto nome = campo(linhas, "jogador");
    const auto nivel = campo(linhas, "nivel");
    const auto justa = campo(linhas, "justa");
    const auto placar = campo(linhas, "placar");
    if (!nome || !nivel || !justa || !placar || placar->size() != 3 || (*placar)[1] != ' ')
        return std::nullopt;
    const auto tipo = nivelDaChave(*nivel);
    const auto j = digito(*justa, 1), pj = digito(placar->substr(0, 1), 9),
               pm = digito(placar->substr(2), 9);
    if (!tipo || !j || !pj || !pm) return std::nullopt;
    p.nome = *nome;
    p.nivel = *tipo;
    p.justa = *j == 1;
    p.pontosJog = *pj;
    p.pontosMac = *pm;
    auto maos = blocos(linhas);
    if (!maos || linhas.proxima() != "atual") return std::nullopt;
    p.maos = std::move(*maos);
    auto atual = leRegistro(linhas);
    const auto ordem = campo(linhas, "ordem");
    if (!atual || !ordem || !linhas.acabou()) return std::nullopt;
    const auto cartas = lerCartas(*ordem);
    if (!cartas || cartas->size() > 10) return std::nullopt;
    p.atual = std::move(*atual);
    p.ordem = *cartas;
    return p;
}

} // namespace corvina
