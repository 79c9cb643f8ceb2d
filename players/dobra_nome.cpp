#include "players/dobra_nome.h"

#include <climits>
#include <clocale>
#include <cwchar>
#include <cwctype>
#include <locale.h>

#include "core/ajustes.h"

namespace corvina {

namespace {
// The C library's own Unicode tables; the process's locale is left alone.
locale_t localeUtf8() {
    static const locale_t utf8 = newlocale(LC_CTYPE_MASK, "C.UTF-8", static_cast<locale_t>(0));
    return utf8;
}
} // namespace

std::string dobraNome(std::string_view texto) {
    const locale_t utf8 = localeUtf8();
    if (utf8 == static_cast<locale_t>(0)) return dobraCaixa(texto);
    const locale_t antes = uselocale(utf8);
    std::string saida;
    saida.reserve(texto.size());
    std::mbstate_t leitura{};
    for (std::size_t i = 0; i < texto.size();) {
        wchar_t c = 0;
        const std::size_t n = std::mbrtowc(&c, texto.data() + i, texto.size() - i, &leitura);
        if (n == 0 || n > texto.size() - i) { // a NUL, or bytes that are not UTF-8
            saida += texto[i++];
            leitura = {};
            continue;
        }
        const wchar_t dobrado = static_cast<wchar_t>(std::towlower(std::towupper(c)));
        char buf[MB_LEN_MAX];
        std::mbstate_t escrita{};
        const std::size_t m = std::wcrtomb(buf, dobrado, &escrita);
        if (m == static_cast<std::size_t>(-1))
            saida.append(texto.data() + i, n);
        else
            saida.append(buf, m);
        i += n;
    }
    uselocale(antes);
    return saida;
}

std::string aparaBrancos(std::string_view texto) {
    const auto inicio = texto.find_first_not_of(' ');
    if (inicio == std::string_view::npos) return {};
    return std::string(texto.substr(inicio, texto.find_last_not_of(' ') - inicio + 1));
}

} // namespace corvina
