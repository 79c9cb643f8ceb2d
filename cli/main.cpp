// corvina-cli: answers one JSON request per line of standard input.

#include <iostream>
#include <string>
#include <string_view>

#include "cli/parada.h"
#include "cli/pedidos.h"

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            std::cout << corvina::cli::kAjuda;
            return 0;
        }
        std::cerr << "corvina-cli: unknown option " << arg << " (see --help)\n";
        return 2;
    }
    std::ios::sync_with_stdio(false);
    corvina::cli::instalaParada();
    // A line is kept only up to one byte past the longest request, so that a line without
    // end can't fill the memory: its answer is the error of a line too long.
    std::string linha;
    std::streambuf* entrada = std::cin.rdbuf();
    for (int c = entrada->sbumpc();; c = entrada->sbumpc()) {
        if (c == std::char_traits<char>::eof() && linha.empty()) break;
        if (c == '\n' || c == std::char_traits<char>::eof()) {
            std::cout << corvina::cli::responde(linha) << '\n' << std::flush;
            linha.clear();
            if (c == std::char_traits<char>::eof() || corvina::cli::parou()) break;
        } else if (linha.size() <= corvina::cli::kMaiorLinha) {
            linha.push_back(static_cast<char>(c));
        }
    }
    return 0;
}
