#include "players/lugar_do_ajuste.h"

#include "core/ajustes.h"
#include "players/dobra_nome.h"

namespace corvina {

std::string codifica(std::string_view texto) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string saida;
    for (const char c : texto) {
        const auto b = static_cast<unsigned char>(c);
        if ((b >= 'a' && b <= 'z') || (b >= '0' && b <= '9') || b == '_') {
            saida += c;
        } else {
            saida += '%';
            saida += kHex[b >> 4];
            saida += kHex[b & 0xF];
        }
    }
    return saida;
}

std::string decodifica(std::string_view texto) {
    const auto hex = [](char c) {
        if (c >= '0' && c <= '9') return c - '0';
        if ((c | 0x20) >= 'a' && (c | 0x20) <= 'f') return (c | 0x20) - 'a' + 10;
        return -1;
    };
    std::string saida;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] == '%' && i + 2 < texto.size() && hex(texto[i + 1]) >= 0 &&
            hex(texto[i + 2]) >= 0) {
            saida += static_cast<char>(hex(texto[i + 1]) * 16 + hex(texto[i + 2]));
            i += 2;
        } else {
            saida += texto[i];
        }
    }
    return saida;
}

std::string chaveCanonica(std::string_view chave) {
    std::string saida;
    for (;;) {
        const std::size_t barra = chave.find('/');
        saida += codifica(dobraNome(decodifica(chave.substr(0, barra))));
        if (barra == std::string_view::npos) return saida;
        saida += '/';
        chave.remove_prefix(barra + 1);
    }
}

LugarDoAjuste lugarDoAjuste(std::string_view chave, std::string_view nome) {
    const std::string base = dobraNome(chaveBase());
    const std::string dobrada = dobraNome(chave);
    LugarDoAjuste l;
    l.nome = codifica(dobraNome(nome));
    if (dobrada == base) {
        l.grupo = "corvina";
    } else if (dobrada.size() > base.size() && dobrada.compare(0, base.size(), base) == 0 &&
               dobrada[base.size()] == '\\') {
        l.grupo = "jogadores/" + codifica(std::string_view(dobrada).substr(base.size() + 1));
    } else {
        l.grupo = "outras/" + codifica(dobrada);
    }
    return l;
}

} // namespace corvina
