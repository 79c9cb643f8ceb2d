// corvina-cli: answers one JSON request per line of standard input.

#include <iostream>
#include <string>
#include <string_view>

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
    std::string linha;
    while (std::getline(std::cin, linha)) {
        std::cout << corvina::cli::responde(linha) << '\n' << std::flush;
    }
    return 0;
}
