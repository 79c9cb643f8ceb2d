// corvina-cli's help: the requests it answers and the form of their answers.

#include "cli/pedidos.h"

namespace corvina::cli {

const char* const kAjuda = R"(corvina-cli: study Corvina hands, one JSON request per line.

Reads one JSON object per line on standard input and writes one JSON object per line on
standard output, in the same order, until the end of input; exits 0 then. Cards are
"valor/naipe" strings: valor 1..13 (1 ace, 11 jack, 12 queen, 13 king), naipe 1..4
(1 hearts, 2 clubs, 3 diamonds, 4 spades). A hand is an array of cards in slot order.

Requests and answers:
  {"op":"count","side":"Jog"|"Mac","hand":[9 or 10],"short":false}
      -> {"count":N,"groups":[...]}   the count of the hand (short: seven orders, not
         fifteen) and the group list it leaves (three cards a trinca; "Jog" only)
  {"op":"contaGrupos","side":S,"hand":[9 or 10]}
      -> {"count":N,"groups":[...]}   one greedy search on the slots as given
  {"op":"vale","test":"grupo"|"dupla"|"duplaSeparada","side":S,"cards":[3 or 2]}
      -> {"result":true|false}
  {"op":"sort","fn":"ordenarEX"|"ordenarZtoA","alfa":A,"pinta":P,"side":S,"hand":[9 or 10]}
  {"op":"sort","fn":"ordenar2","modoOrdem":M,"hand":[9 or 10]}
      -> {"hand":[...]} (and "modoOrdem" after the call, for ordenar2)
  {"op":"agrupaMac","hand":[9]}
      -> {"hand":[...]}   the machine's hand laid out as at the end of a hand
  {"op":"turn","hand":[9],"pile":"v/n","stock":["v/n",...]}
      -> {"takes":"pile"|"stock"|"none","discard":SLOT,"hand":[9],"pile":"v/n"}
         one machine turn; "stock" lists the stock from position 1 up, so its last entry
         is drawn first; "none" when the stock was empty and the pile refused
  {"op":"deal","deck":[104 ids],"pontosJog":J,"pontosMac":M,"sorte":true|false}
      -> {"jog":[9],"mac":[9],"stock":[86],"sortePercent":N|null}
         the deal of that shuffle (ids 1..104, each once), with the exchange's luck as
         given; sortePercent is what the luck was asked, null if it was not
  {"op":"sortButton","hand":[9 or 10],"ordemAuto":N,"assistido":0|1,"avisoOrdenar":B}
      -> {"hand":[...],"ordemAuto":N,"caption":"...","status":"..."|null,"win":B,
          "messages":["..."]}   one press of the sort button; status null when the
         trinca line was left alone, messages the texts of the boxes shown
  {"op":"hallDaFama","jogadores":[{"nome":"..","saldo":S,"vitorias":V,"derrotas":D},...],
   "nomeJogador":".."}
      -> {"linhas":[{"nome":"..","vitorias":V,"derrotas":D,"saldo":S,"verde":B},...]}
         the rows of the hall of fame for players in list order (at most 50); a value may
         be a number or the text the store holds, and an empty or absent one counts 0
  {"op":"maiorVersion","local":"3.7.4","remota":"3.8.0"}
      -> {"maior":true|false}   whether the update server's version counts as newer
  {"op":"campo","texto":"..","delimitador":"!*!","n":N}
      -> {"campo":".."}   the Nth field (from 1) of a server's answer
  {"op":"selfplay","seed":S,"matches":N}
      -> {"matches":N,"hands":..,"handsWonJog":..,"handsWonMac":..,"handsNoWinner":..,
          "exchanges":..,"matchesWonJog":..,"matchesWonMac":..,"seconds":..}
         whole matches, both sides by the machine's rule; progress on standard error, and
         an interrupt answers for the matches played ("interrupted":true)
  {"op":"decide","level":"classico"|"esperto"|"forte","hand":[9 or 10],"pile":"v/n"|null,
   "drew":"pile"|"stock","discards":["v/n",...],"opponentTook":["v/n",...],"stock":N,"seed":S,
   "opponentDiscards":["v/n",...],"took":["v/n",...]}
      -> {"draw":"pile"|"stock"} with 9 cards; {"discard":"v/n"} with 10, the last of them
         the card just drawn ("drew" says from where). One decision of a level from what its
         seat may know; the last two keys are optional: which discards were the opponent's,
         and what this seat took from the pile. "level":"vidente" is the arena's seer, given
         the hidden cards: "opponentHand":[9] and "stockOrder":[..] ("stock" cards,
         position 1 first, the last drawn first)
  {"op":"arena","a":L,"b":L,"pairs":N,"seed":S,"threads":T,"from":F,"ms":M}
      -> {"handsA":..,"handsB":..,"noWinner":..,"matchesA":..,"matchesB":..,"shareA":..,
          "ciLow":..,"ciHigh":..,"msMeanA":..,"msP99A":..,"msMeanB":..,"msP99B":..,
          "pairs":..,"from":..}
         levels a and b on mirrored deals: pairs F .. F+N-1 of seed S (F is 0 unless given),
         each shuffle played twice with the seats swapped and no exchange; matches are first
         to 4 in each seat's run of hands; shareA is of decided hands, with its 95%
         interval taken over pairs (the two hands of a pair share their deal); progress
         on standard error, and an interrupt answers for the pairs played. L may also be
         "vidente", the seer: it plays by the hint's search on the real hidden cards, to
         measure how far the levels stand from a player who sees everything; or "busca",
         every move by the hint's search on sampled worlds, "ms":M a decision (50 unless
         given). A hand past 1,000 turns (seats that only take each other's throws) is
         stopped and counted among noWinner, and as "endless":N

  {"op":"revisa","log":"mao 0 0\njog ...\nfim mac\n"}
      -> {"throws":[{"move":N,"threw":"v/n","forte":"v/n","same":B},...],"same":S,"of":T}
         for each of the player's throws in a hand's log (the text the game keeps for a
         hand, as "partida" exports it), the throw Forte makes from that same view
  {"op":"partida","kept":"corvina-partida 1\n..."}   or   {"op":"partida","log":"mao ..."}
      -> {"player":"..","level":L,"fair":B,"score":[J,M],"hands":[H,...],"current":H,
          "order":[..]}   or   {"hand":H}
         a kept match (the game's database, table partidas_guardadas) or one hand's log
         as JSON: H is {"score":[J,M],"jog":[9],"mac":[9],"stock":[86, the next first],
         "moves":[{"side":"Jog"|"Mac","from":"stock"|"pile","took":"v/n","hand":[10],
         "slot":S,"threw":"v/n"},...],"end":"jog"|"mac"|"semmonte"|"emjogo"}; the last
         move may lack its throw

A request that is not valid JSON, names an unknown op, misses a field, or holds a bad card
or a hand of the wrong size is answered {"error":"..."}, and the next line is read.

Options: --help   this text.
)";

} // namespace corvina::cli
