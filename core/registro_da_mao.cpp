#include "core/registro_da_mao.h"

#include <array>

namespace corvina {

namespace {
inline constexpr std::size_t kCartasNoMonteDoRegistro = 86;
inline constexpr std::size_t kCartasAntesDoDescarte = 10;
// Every move draws a card and the stock ends the hand when empty: this many is already absurd.
inline constexpr std::size_t kMaisLances = 2 * kCartasNoMonteDoRegistro + 8;

constexpr std::array<std::string_view, 4> kFins = {"emjogo", "jog", "mac", "semmonte"};

std::vector<std::string_view> palavras(std::string_view linha) {
    std::vector<std::string_view> p;
    std::size_t i = 0;
    while (i < linha.size()) {
        const std::size_t fim = std::min(linha.find(' ', i), linha.size());
        if (fim == i) return {}; // two blanks, or a blank at the start: not ours
        p.push_back(linha.substr(i, fim - i));
        i = fim + 1;
        if (i == linha.size()) return {}; // a blank at the end
    }
    return p;
}

std::optional<int> numero(std::string_view t, int maior) {
    if (t.empty() || t.size() > 3) return std::nullopt;
    int n = 0;
    for (const char c : t) {
        if (c < '0' || c > '9') return std::nullopt;
        n = n * 10 + (c - '0');
    }
    return n <= maior ? std::optional<int>(n) : std::nullopt;
}

// "rotulo c c c": exactly `quantas` valid cards.
std::optional<std::vector<Carta>> cartasDaLinha(std::optional<std::string_view> linha,
                                                std::string_view rotulo, std::size_t quantas) {
    if (!linha) return std::nullopt;
    const auto p = palavras(*linha);
    if (p.size() != quantas + 1 || p[0] != rotulo) return std::nullopt;
    std::vector<Carta> cartas;
    for (std::size_t i = 1; i < p.size(); ++i) {
        const auto c = lerCarta(p[i]);
        if (!c || !cartaValida(*c)) return std::nullopt;
        cartas.push_back(*c);
    }
    return cartas;
}

std::optional<Lance> leLance(const std::vector<std::string_view>& p) {
    if (p.size() != 4 && p.size() != 5 + kCartasAntesDoDescarte) return std::nullopt;
    const auto lado = ladoDaChave(p[1]);
    const auto tomada = lerCarta(p[3]);
    if (!lado || !tomada || !cartaValida(*tomada) || (p[2] != "monte" && p[2] != "pilha"))
        return std::nullopt;
    Lance l{*lado, p[2] == "monte" ? Origem::Monte : Origem::Pilha, *tomada, {}, 0};
    if (p.size() == 4) return l;
    const auto casa = numero(p[4], static_cast<int>(kCartasAntesDoDescarte));
    if (!casa || *casa < 1) return std::nullopt;
    l.casa = static_cast<int16>(*casa);
    for (std::size_t i = 5; i < p.size(); ++i) {
        const auto c = lerCarta(p[i]);
        if (!c || !cartaValida(*c)) return std::nullopt;
        l.mao.push_back(*c);
    }
    return l;
}
} // namespace

std::string_view chaveDoFim(FimDaMao fim) {
    return kFins[static_cast<std::size_t>(fim)];
}

void RegistroDaMao::descarta(Lado lado, std::vector<Carta> mao, int16 casa) {
    if (lances.empty() || lances.back().lado != lado || lances.back().completo()) return;
    if (mao.size() != kCartasAntesDoDescarte || casa < 1 || casa > static_cast<int16>(mao.size()))
        return;
    lances.back().mao = std::move(mao);
    lances.back().casa = casa;
}

std::optional<std::string_view> Linhas::proxima() {
    if (resto_.empty()) return std::nullopt;
    const std::size_t fim = resto_.find('\n');
    if (fim == std::string_view::npos) return std::nullopt; // a last line cut short
    const std::string_view linha = resto_.substr(0, fim);
    resto_.remove_prefix(fim + 1);
    return linha;
}

std::string escreveRegistro(const RegistroDaMao& r) {
    std::string t = "mao " + std::to_string(r.pontosJog) + " " + std::to_string(r.pontosMac) + "\n";
    t += "jog " + escreveCartas(r.jog) + "\nmac " + escreveCartas(r.mac) + "\n";
    t += "monte " + escreveCartas(r.monte) + "\n";
    for (const Lance& l : r.lances) {
        t += "lance " + std::string(chaveDoLado(l.lado)) +
             (l.origem == Origem::Monte ? " monte " : " pilha ") + escreveCarta(l.tomada);
        if (l.completo()) t += " " + std::to_string(l.casa) + " " + escreveCartas(l.mao);
        t += "\n";
    }
    t += "fim " + std::string(chaveDoFim(r.fim)) + "\n";
    return t;
}

std::optional<RegistroDaMao> leRegistro(Linhas& linhas) {
    const auto primeira = linhas.proxima();
    if (!primeira) return std::nullopt;
    const auto cabeca = palavras(*primeira);
    if (cabeca.size() != 3 || cabeca[0] != "mao") return std::nullopt;
    const auto pontosJog = numero(cabeca[1], 9), pontosMac = numero(cabeca[2], 9);
    const auto jog = cartasDaLinha(linhas.proxima(), "jog", RegistroDaMao::kCartasNaMaoDoRegistro);
    const auto mac = cartasDaLinha(linhas.proxima(), "mac", RegistroDaMao::kCartasNaMaoDoRegistro);
    const auto monte = cartasDaLinha(linhas.proxima(), "monte", kCartasNoMonteDoRegistro);
    if (!pontosJog || !pontosMac || !jog || !mac || !monte) return std::nullopt;
    RegistroDaMao r{*jog,
                    *mac,
                    *monte,
                    static_cast<int16>(*pontosJog),
                    static_cast<int16>(*pontosMac),
                    {},
                    FimDaMao::EmJogo};
    while (const auto linha = linhas.proxima()) {
        const auto p = palavras(*linha);
        if (p.size() == 2 && p[0] == "fim") {
            for (std::size_t i = 0; i < kFins.size(); ++i)
                if (p[1] == kFins[i]) {
                    r.fim = static_cast<FimDaMao>(i);
                    return r;
                }
            return std::nullopt;
        }
        if (p.empty() || p[0] != "lance" || r.lances.size() >= kMaisLances) return std::nullopt;
        const auto l = leLance(p);
        // Only the last move may still wait for its throw.
        if (!l || (!r.lances.empty() && !r.lances.back().completo())) return std::nullopt;
        r.lances.push_back(*l);
    }
    return std::nullopt;
}

std::optional<RegistroDaMao> leRegistro(std::string_view texto) {
    Linhas linhas(texto);
    auto r = leRegistro(linhas);
    return r && linhas.acabou() ? r : std::nullopt;
}

} // namespace corvina
