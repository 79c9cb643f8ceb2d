#include "players/partida_para_retomar.h"

#include "machine/partida_em_texto.h"
#include "players/dobra_nome.h"

namespace corvina {

std::optional<PartidaGuardada> partidaParaRetomar(BancoDoJogo& banco, const std::string& nome) {
    const auto texto = banco.partidaGuardada(nome);
    if (!texto) return std::nullopt;
    auto lida = lePartida(*texto);
    if (!lida || dobraNome(lida->nome) != dobraNome(nome) || !confere(*lida).estado) {
        banco.poePartidaDeLado(nome, *texto);
        return std::nullopt;
    }
    return lida;
}

} // namespace corvina
