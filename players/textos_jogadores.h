#pragma once
// The words of the players' windows, exactly as the player reads them.

namespace corvina::texto {

inline constexpr const char* kSemNome = "Sem Nome";
inline constexpr const char* kJogadorProposto = "Jogador";
inline constexpr const char* kExcluir = "Excluir ";
inline constexpr const char* kDesejaExcluir = "Deseja realmente excluir ";
inline constexpr const char* kJaCadastrado = " já está cadastrado";
inline constexpr const char* kJogarComEsteNome = "Deseja jogar com este nome?";
inline constexpr const char* kZerarHall = "Deseja realmente zerar o Hall da Fama?";
inline constexpr const char* kConfirmacao = "Confirmação";
inline constexpr const char* kZerarEstatisticas = "Deseja zerar também as estatísticas?";
inline constexpr const char* kFalhaAoGravar =
    "Não foi possível gravar os dados do jogo (o disco pode estar cheio ou protegido).\r"
    "O jogo continua, e o que falta gravar será gravado assim que for possível.";

} // namespace corvina::texto
