#pragma once
// The words of the table, exactly as the player reads them.

namespace corvina::texto {

inline constexpr const char* kPegueNoBaralho = "Pegue uma carta no baralho";
inline constexpr const char* kAgoraDescarte = "Agora descarte uma de suas cartas";
inline constexpr const char* kAguardeMaquina = "Aguarde a maquina jogar";
inline constexpr const char* kPegueBaralhoOuDescarte = "Pegue uma carta no baralho ou no descarte";
inline constexpr const char* kAntesPegue =
    "Antes você deve pegar uma carta no baralho ou no descarte";
inline constexpr const char* kDevesDescartar =
    "Você agora deve descartar uma de suas cartas, OK?   ";
inline constexpr const char* kMovimentoNaoPermitido = "Movimento não permitido";
inline constexpr const char* kAcabouBaralhoJog = "Acabou o Baralho.";
inline constexpr const char* kAcabouBaralhoMac = "Acabou o Baralho";

inline constexpr const char* kTresTrincas = "3 trincas";
inline constexpr const char* kDuasTrincas = "2 trincas";
inline constexpr const char* kUmaTrinca = "1 trinca";

inline constexpr const char* kVenceuPartida = "Parabéns, você foi o vencedor";
inline constexpr const char* kVencedorDaMao = "Vencedor desta mão:  ";
inline constexpr const char* kPerdeuPartida = "Você perdeu esta.";
inline constexpr const char* kCpu = "CPU";

inline constexpr const char* kAuto = "Auto";
inline constexpr const char* kOrdenar = "Ordenar";

} // namespace corvina::texto

namespace corvina::som {

inline constexpr const char* kCarta1 = "\\cart1.wav";
inline constexpr const char* kCarta1Descarte = "\\Cart1.wav"; // the same file, spelled so
inline constexpr const char* kCarta3 = "\\cart3.wav";
inline constexpr const char* kErro = "\\erro.wav";
inline constexpr const char* kValeu = "\\valeu.wav";
inline constexpr const char* kFinalC = "\\finalc.wav";
inline constexpr const char* kNegado = "\\denied2.wav";
inline constexpr const char* kClique = "\\CLICK2.wav";
inline constexpr const char* kApaga = "\\delete.wav "; // the blank is dropped when it is found

} // namespace corvina::som
