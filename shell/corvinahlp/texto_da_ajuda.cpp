#include "shell/corvinahlp/texto_da_ajuda.h"

#include <QStringList>

namespace corvina {

namespace {
// "copa7 copa8 copa9" as a row of card pictures.
QString cartas(const QString& nomes) {
    QString linha;
    for (const QString& n : nomes.split(' '))
        linha += QString("<img src=\"cartas/%1.png\" width=\"48\" height=\"65\"> ").arg(n);
    return "<p style=\"margin-left:16px\">" + linha + "</p>";
}
} // namespace

QString textoDaAjuda() {
    return QStringLiteral(R"(
<h1>Corvina</h1>
<p>Corvina é um jogo de cartas da família do rummy: você contra a máquina, com dois baralhos de
52 cartas. Cada lado recebe nove cartas. Quem primeiro formar <b>três trincas</b> com as suas
nove cartas vence a mão, e quem vencer <b>quatro mãos</b> vence a partida.</p>

<h2>As trincas</h2>
<p>Uma trinca são três cartas do mesmo valor em três naipes diferentes:</p>)") +
           cartas("coracao7 copa7 espada7") + QStringLiteral(R"(
<p>ou uma sequência de três cartas do mesmo naipe:</p>)") +
           cartas("ramo4 ramo5 ramo6") + QStringLiteral(R"(
<p>O ás vem antes do 2 e depois do rei: Q-K-A vale, K-A-2 não.</p>)") +
           cartas("espada12 espada13 espada1") + QStringLiteral(R"(

<h2>A sua vez</h2>
<ul>
<li><b>Comprar:</b> clique no baralho, ou na última carta descartada, para pegar uma carta.
Você fica com dez cartas.</li>
<li><b>Arrumar:</b> arraste uma carta ao longo da fileira para mudar o lugar dela.</li>
<li><b>Descartar:</b> solte uma carta acima da fileira. Ela vai para o descarte, e então a
máquina joga.</li>
</ul>
<p><b>Atenção:</b> quando você tem dez cartas, a carta sob o mouse sobe; um simples clique nela
já a descarta. Para só mudar uma carta de lugar, arraste-a ao longo da fileira.</p>
<p>Antes de descartar é preciso comprar. A máquina só pega o seu descarte se ele melhorar a mão
dela; por isso pense bem no que joga fora.</p>

<h2>O placar</h2>
<p>Cada mão vencida vale um ponto. Quando um lado chega a 4 pontos a partida termina, e o seu
recorde (vitórias, derrotas e saldo) é guardado com o seu nome. Se o baralho acabar, a mão
termina sem vencedor. O <b>Hall da Fama</b> (RECORDES) mostra os seis melhores saldos.</p>

<h2>Modo assistido</h2>
<p>Na janela de escolha do jogador, marque <i>Modo assistido</i>. A barra de baixo passa a dizer
quantas trincas você já formou, e o botão <b>Ordenar</b> arruma a sua mão: a cada clique ele
tenta outra ordem e junta as trincas lado a lado.</p>

<h2>Teclas</h2>
<table cellspacing="4">
<tr><td><b>F2</b></td><td>escolher o verso das cartas</td></tr>
<tr><td><b>F3</b></td><td>nova partida</td></tr>
<tr><td><b>F4</b></td><td>opções: som, música e velocidade das cartas</td></tr>
<tr><td><b>F5</b></td><td>Hall da Fama</td></tr>
<tr><td><b>F6</b></td><td>esta ajuda</td></tr>
<tr><td><b>F7, F8</b></td><td>verso anterior, próximo verso</td></tr>
<tr><td><b>F9</b></td><td>mostrar ou esconder o valor das mãos</td></tr>
<tr><td><b>F10</b></td><td>fechar o Corvina</td></tr>
</table>
)");
}

} // namespace corvina
