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
