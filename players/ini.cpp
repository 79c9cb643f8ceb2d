#include "players/ini.h"

#include <cstdint>

namespace corvina {

namespace {

inline constexpr std::string_view kGeral = "General";

bool hex(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}
int valorHex(char c) {
    return c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
}

void poeUtf8(std::string& s, std::uint32_t cp) {
    if (cp < 0x80) {
        s += static_cast<char>(cp);
    } else if (cp < 0x800) {
        s += static_cast<char>(0xC0 | (cp >> 6));
        s += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        s += static_cast<char>(0xE0 | (cp >> 12));
        s += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

// Key names: "%XX" and "%UXXXX" stand for a character, "\" for the separator "/".
std::string leChave(std::string_view t) {
    std::string s;
    for (std::size_t i = 0; i < t.size(); ++i) {
        const char c = t[i];
        const std::size_t digitos = i + 1 < t.size() && t[i + 1] == 'U' ? 4 : 2;
        const std::size_t inicio = i + 1 + (digitos == 4 ? 1 : 0);
        bool codigo = c == '%' && inicio + digitos <= t.size();
        for (std::size_t k = 0; codigo && k < digitos; ++k) codigo = hex(t[inicio + k]);
        if (codigo) {
            std::uint32_t cp = 0;
            for (std::size_t k = 0; k < digitos; ++k) cp = cp * 16 + valorHex(t[inicio + k]);
            poeUtf8(s, cp);
            i = inicio + digitos - 1;
        } else {
            s += c == '\\' ? '/' : c;
        }
    }
    return s;
}

std::string escreveChave(std::string_view t) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string s;
    for (const char c : t) {
        const auto b = static_cast<unsigned char>(c);
        if (c == '/') {
            s += '\\';
        } else if ((b >= 'a' && b <= 'z') || (b >= 'A' && b <= 'Z') || (b >= '0' && b <= '9') ||
                   c == '_' || c == '-' || c == '.') {
            s += c;
        } else { // our keys are ASCII: one byte, one code
            s += '%';
            s += kHex[b >> 4];
            s += kHex[b & 0xF];
        }
    }
    return s;
}

// A value: outer blanks dropped, "..." keeps what it holds, backslash escapes as C writes
// them, and a leading "@@" stands for a plain "@".
std::string leValor(std::string_view t) {
    std::string s;
    std::size_t fim = 0; // past the last character that counts; blanks after it are dropped
    bool aspas = false;
    std::size_t i = 0;
    while (i < t.size() && (t[i] == ' ' || t[i] == '\t')) ++i;
    for (; i < t.size(); ++i) {
        const char c = t[i];
        if (c == '"') {
            aspas = !aspas;
            fim = s.size();
            continue;
        }
        if (c == '\\' && i + 1 < t.size()) {
            const char e = t[++i];
            switch (e) {
            case 'a':
                s += '\a';
                break;
            case 'b':
                s += '\b';
                break;
            case 'f':
                s += '\f';
                break;
            case 'n':
                s += '\n';
                break;
            case 'r':
                s += '\r';
                break;
            case 't':
                s += '\t';
                break;
            case 'v':
                s += '\v';
                break;
            case 'x': {
                std::uint32_t cp = 0;
                std::size_t k = 0;
                while (k < 4 && i + 1 < t.size() && hex(t[i + 1]))
                    cp = cp * 16 + valorHex(t[++i]), ++k;
                poeUtf8(s, cp);
                break;
            }
            case '0':
            case '1':
            case '2':
            case '3':
            case '4':
            case '5':
            case '6':
            case '7': {
                std::uint32_t cp = static_cast<std::uint32_t>(e - '0');
                for (int k = 0; k < 2 && i + 1 < t.size() && t[i + 1] >= '0' && t[i + 1] <= '7';
                     ++k)
                    cp = cp * 8 + static_cast<std::uint32_t>(t[++i] - '0');
                poeUtf8(s, cp);
                break;
            }
            default:
                s += e;
                break; // \" \' \\ \? and anything else: the character itself
            }
            fim = s.size();
            continue;
        }
        s += c;
        if (aspas || (c != ' ' && c != '\t')) fim = s.size();
    }
    s.resize(fim);
    if (s.size() >= 2 && s[0] == '@' && s[1] == '@') s.erase(0, 1);
    return s;
}

std::string escreveValor(std::string_view v) {
    static constexpr char kHex[] = "0123456789abcdef";
    std::string s = !v.empty() && v[0] == '@' ? "@" : "";
    bool aspas = !v.empty() &&
                 (v.front() == ' ' || v.back() == ' ' || v.front() == '\t' || v.back() == '\t');
    bool depoisDeCodigo = false; // a hex digit right after "\xHHHH" would join the code
    for (const char c : v) {
        const auto b = static_cast<unsigned char>(c);
        const bool digito = hex(c);
        switch (c) {
        case '\\':
            s += "\\\\";
            break;
        case '"':
            s += "\\\"";
            break;
        case '\n':
            s += "\\n";
            break;
        case '\r':
            s += "\\r";
            break;
        case '\t':
            s += "\\t";
            break;
        case ';':
        case ',':
        case '=':
            aspas = true;
            s += c;
            break;
        default:
            if (b < 0x20 || b == 0x7F || (depoisDeCodigo && digito)) {
                s += "\\x";
                for (int k = 12; k >= 0; k -= 4) s += kHex[(b >> k) & 0xF];
                depoisDeCodigo = true;
                continue;
            }
            s += c;
        }
        depoisDeCodigo = false;
    }
    return aspas ? "\"" + s + "\"" : s;
}

// Takes the next line off the text (up to CR or LF), without its leading blanks.
std::string_view proximaLinha(std::string_view& texto) {
    const std::size_t quebra = texto.find_first_of("\r\n");
    std::string_view linha = texto.substr(0, quebra);
    texto.remove_prefix(quebra == std::string_view::npos ? texto.size() : quebra + 1);
    while (!linha.empty() && (linha.front() == ' ' || linha.front() == '\t'))
        linha.remove_prefix(1);
    return linha;
}

} // namespace

ValoresIni leIni(std::string_view texto) {
    ValoresIni valores;
    std::string secao;
    while (!texto.empty()) {
        const std::string_view linha = proximaLinha(texto);
        if (linha.empty() || linha[0] == ';' || linha[0] == '#') continue;
        if (linha[0] == '[') {
            const std::size_t fecha = linha.find(']');
            secao =
                leChave(linha.substr(1, fecha == std::string_view::npos ? linha.npos : fecha - 1));
            if (secao == kGeral) secao.clear();
            continue;
        }
        const std::size_t igual = linha.find('=');
        if (igual == std::string_view::npos) continue;
        std::string_view nome = linha.substr(0, igual);
        while (!nome.empty() && (nome.back() == ' ' || nome.back() == '\t')) nome.remove_suffix(1);
        if (nome.empty()) continue;
        const std::string chave = leChave(nome);
        valores[secao.empty() ? chave : secao + "/" + chave] = leValor(linha.substr(igual + 1));
    }
    return valores;
}

namespace {
// The length of the UTF-8 sequence that starts at t[i], 0 when it is not a valid one (overlong
// forms and surrogates included).
std::size_t sequenciaUtf8(std::string_view t, std::size_t i) {
    const auto b = [&](std::size_t k) { return static_cast<unsigned char>(t[i + k]); };
    const auto segue = [&](std::size_t k) { return i + k < t.size() && (b(k) & 0xC0) == 0x80; };
    const unsigned char c = b(0);
    if (c < 0x80) return 1;
    if (c >= 0xC2 && c <= 0xDF) return segue(1) ? 2 : 0;
    if (c >= 0xE0 && c <= 0xEF) {
        if (!segue(1) || !segue(2)) return 0;
        if ((c == 0xE0 && b(1) < 0xA0) || (c == 0xED && b(1) >= 0xA0)) return 0;
        return 3;
    }
    if (c >= 0xF0 && c <= 0xF4) {
        if (!segue(1) || !segue(2) || !segue(3)) return 0;
        if ((c == 0xF0 && b(1) < 0x90) || (c == 0xF4 && b(1) >= 0x90)) return 0;
        return 4;
    }
    return 0;
}
} // namespace

bool pareceIni(std::string_view texto) {
    for (std::size_t i = 0; i < texto.size();) {
        const auto c = static_cast<unsigned char>(texto[i]);
        // DEL passes: Qt writes it as it is.
        if (c < 0x20 && c != '\t' && c != '\r' && c != '\n') return false;
        const std::size_t n = sequenciaUtf8(texto, i);
        if (n == 0) return false;
        i += n;
    }
    while (!texto.empty()) {
        const std::string_view linha = proximaLinha(texto);
        if (linha.empty() || linha[0] == ';' || linha[0] == '#') continue;
        if (linha[0] == '[' ? linha.find(']') == std::string_view::npos
                            : linha.find('=') == std::string_view::npos || linha[0] == '=')
            return false;
    }
    return true;
}

std::string escreveIni(const ValoresIni& valores) {
    std::map<std::string, std::string> secoes; // section: its lines
    for (const auto& [chave, valor] : valores) {
        const std::size_t barra = chave.find('/');
        const std::string secao =
            barra == std::string::npos ? std::string(kGeral) : chave.substr(0, barra);
        const std::string nome = barra == std::string::npos ? chave : chave.substr(barra + 1);
        secoes[secao] += escreveChave(nome) + "=" + escreveValor(valor) + "\n";
    }
    std::string texto;
    for (const auto& [secao, linhas] : secoes) {
        if (!texto.empty()) texto += "\n";
        texto += "[" + escreveChave(secao) + "]\n" + linhas;
    }
    return texto;
}

} // namespace corvina
