#pragma once
// The words of the update, exactly as the player reads them.

#include "update/desfecho_da_instalacao.h"

namespace corvina::texto {

inline constexpr const char* kSemConexao = "Não foi possível conectar ao servidor";
inline constexpr const char* kJaRecente = "Você já está utilizando a versão mais recente do ";
inline constexpr const char* kUtilizando = "Você está utilizando a versão ";
inline constexpr const char* kDesejaAtualizar = "Deseja atualizar para a versão ";
inline constexpr const char* kAgora = " agora?";
inline constexpr const char* kSemDownload = "Não foi possivel fazer o download da atualização";
inline constexpr const char* kSemInstalador = "Não foi possivel localizar o arquivo de instalação";
inline constexpr const char* kTenteDepois =
    "Tente novamente mais tarde ou faça o download no site ";
inline constexpr const char* kSeraFechado = " será fechado para que a atualização seja feita";
inline constexpr const char* kLink = "Link";

// What the player is told when the helper that installs the update refuses it, by its exit code.
inline constexpr const char* recusaDoAjudante(int codigo) {
    if (codigo == static_cast<int>(Desfecho::NaoENova))
        return "A atualização recebida não é mais nova que a versão instalada";
    if (codigo == static_cast<int>(Desfecho::NaoAssinado))
        return "A atualização recebida não tem a assinatura da Lunaris";
    if (codigo == kPkexecRecusou || codigo == kPkexecNaoAutorizou)
        return "A atualização não foi autorizada";
    return "Não foi possível instalar a atualização";
}

} // namespace corvina::texto
