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

<h2>O adversário e a distribuição</h2>
<p>À direita do descarte a mesa mostra contra quem você joga e como as cartas são dadas.
Clique ali, ou tecle <b>N</b>, para escolher o nível; a escolha fica guardada com o seu nome.</p>
<ul>
<li><b>Clássico</b>: a máquina de sempre. Só pega uma carta se ela aumentar a contagem da mão
dela. Na distribuição, se a sua mão vier melhor que a dela, a máquina pode ficar com a sua
(mais vezes quando você está na frente do placar).</li>
<li><b>Esperto</b>: conta quantas cartas faltam para as três trincas, lembrando das duas
cópias de cada carta e de tudo o que já foi descartado, e evita dar a você o que você recolhe.
Nunca troca as mãos.</li>
<li><b>Forte</b>: pensa duas compras adiante, pesando cada carta que ainda pode vir. O mais
difícil. Nunca troca as mãos.</li>
</ul>
<p><b>Distribuição justa</b>: marque-a na janela do nível para que o Clássico também jogue
com as cartas como vieram. A mesa diz <i>Distribuição justa</i>, ou <i>A CPU pode trocar as
mãos</i> quando a troca está ligada.</p>

<h2>Dica</h2>
<p>Tecle <b>D</b>, ou clique em <i>Dica</i>, e o jogo mostra a melhor jogada no seu lugar:
um aro dourado marca o baralho, o descarte ou a carta a descartar, e a linha acima das suas
cartas diz a jogada e quantas vezes ela ganha a mão, e a segunda melhor. A dica joga a mão
até o fim centenas de vezes, com as cartas que você não vê sorteadas entre as que podem
estar escondidas. A dica nunca joga por você, e some assim que a mesa muda.</p>

<h2>Jogar pelo teclado</h2>
<p>A partida inteira se joga sem o mouse. Um contorno branco tracejado marca a carta em foco.</p>
<table cellspacing="4">
<tr><td><b>← →</b> ou <b>Tab</b></td><td>passar o foco pelas suas cartas</td></tr>
<tr><td><b>1</b> a <b>9</b>, <b>0</b></td><td>pôr o foco na carta daquele lugar (0 é a décima)</td></tr>
<tr><td><b>Home</b>, <b>End</b></td><td>a primeira carta, a última</td></tr>
<tr><td><b>Shift + ← →</b></td><td>levar a carta em foco um lugar para o lado</td></tr>
<tr><td><b>B</b></td><td>comprar do baralho</td></tr>
<tr><td><b>P</b></td><td>pegar a carta de cima da pilha de descarte</td></tr>
<tr><td><b>Enter</b> ou <b>Espaço</b></td><td>descartar a carta em foco</td></tr>
<tr><td><b>O</b></td><td>ordenar (no modo assistido)</td></tr>
<tr><td><b>Esc</b></td><td>tirar o foco</td></tr>
</table>
<p>Com um leitor de tela (o Orca, por exemplo), a mesa é lida: cada carta pelo nome, o baralho,
a carta de cima do descarte, a mão da CPU, o placar, e a linha de mensagens, que depois da vez
da CPU diz o que ela pegou e o que descartou.</p>

<h2>Teclas</h2>
<table cellspacing="4">
<tr><td><b>F2</b></td><td>escolher o verso das cartas</td></tr>
<tr><td><b>F3</b></td><td>nova partida</td></tr>
<tr><td><b>F4</b></td><td>opções: som, música, velocidade das cartas e tamanho da mesa</td></tr>
<tr><td><b>F5</b></td><td>Hall da Fama, e nele as estatísticas de cada jogador</td></tr>
<tr><td><b>F6</b></td><td>esta ajuda</td></tr>
<tr><td><b>F7, F8</b></td><td>verso anterior, próximo verso</td></tr>
<tr><td><b>F9</b></td><td>mostrar ou esconder o valor das mãos</td></tr>
<tr><td><b>F10</b></td><td>fechar o Corvina</td></tr>
<tr><td><b>F11</b></td><td>tela cheia (F11 ou Esc para voltar)</td></tr>
<tr><td><b>N</b></td><td>nível do adversário e distribuição justa</td></tr>
<tr><td><b>D</b></td><td>dica para a sua jogada</td></tr>
<tr><td><b>Q</b></td><td>baralho de quatro cores: ouros em azul e paus em verde (ou um clique na linha
do baralho, à direita do descarte)</td></tr>
</table>
)");
}

} // namespace corvina
