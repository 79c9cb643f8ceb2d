#include "table/leitura_da_mesa.h"

#include "core/pecas.h"

namespace corvina {

namespace {

std::optional<Carta> cartaDaFigura(Figura f) {
    if (f < 1 || f > kCartasPorBaralho) return std::nullopt; // no picture, or a back
    return Carta{static_cast<int16>((f - 1) % kValores + 1),
                 static_cast<int16>((f - 1) / kValores + 1)};
}

std::string cartas(int n) {
    return std::to_string(n) + (n == 1 ? " carta" : " cartas");
}

void junta(std::string& texto, const std::string& parte) {
    if (parte.empty()) return;
    if (!texto.empty()) texto += texto.back() == '.' ? " " : ". ";
    texto += parte;
}

bool acionavel(const Cena& c, Peca p) {
    return c[p].Visible && c[p].Enabled;
}

ItemDaLeitura maoDaMaquina(const Jogo& jogo, const Cena& cena) {
    ItemDaLeitura item{
        Papel::MaoDaMaquina, "Mão da " + std::string(texto::kCpu), "", {}, false, false};
    const int q = jogo.mesa.qtdMac;
    std::string faces;
    bool viradas = false;
    for (int i = 1; i <= q && i < kCasaCompra + 1; ++i) {
        const Peca p = peca::cm(i);
        if (!cena[p].Visible) continue;
        item.pecas.push_back(p);
        if (const auto c = cartaDaFigura(cena[p].Picture))
            faces += (faces.empty() ? "" : ", ") + nomeDaCarta(*c);
        else
            viradas = true;
    }
    item.descricao = cartas(q);
    // Faces are read only where the table shows them all.
    if (!viradas && !faces.empty()) item.descricao += ": " + faces;
    return item;
}

} // namespace

std::string ultimaJogadaDaMaquina(const Historico& h) {
    std::size_t k = h.autores.size();
    while (k > 0 && h.autores[k - 1] != Lado::Mac) --k;
    if (k == 0) return "";
    const std::size_t descarte = k - 1;
    const std::string cpu = "A " + std::string(texto::kCpu);
    std::string lance;
    // A take in its turn came after the discard before its own.
    const auto tomada = h.ultimaTomadaDe(Lado::Mac);
    if (tomada && *tomada == descarte && !h.tomadasPor(Lado::Mac).empty())
        lance =
            cpu + " pegou " + nomeDaCartaComArtigo(h.tomadasPor(Lado::Mac).back()) + " do descarte";
    else
        lance = cpu + " comprou do baralho";
    return lance + " e descartou " + nomeDaCartaComArtigo(h.descartes[descarte]) + ".";
}

std::vector<ItemDaLeitura> leituraDaMesa(const Jogo& jogo, const Cena& cena,
                                         const std::optional<Dica>& dica, bool livre) {
    std::vector<ItemDaLeitura> itens;
    const Mesa& m = jogo.mesa;
    for (int i = 1; i <= m.qtdJog && i <= kCasaCompra; ++i) {
        const Peca p = peca::cj(i);
        itens.push_back({Papel::Carta,
                         nomeDaCarta(cartaNa(m.jogValor, m.jogNaipe, i)),
                         "carta " + std::to_string(i),
                         {p},
                         cena.foco == i,
                         livre && acionavel(cena, p)});
    }
    itens.push_back({Papel::Baralho,
                     "Baralho",
                     m.qtdBaralho > 0 ? cartas(m.qtdBaralho) : "vazio",
                     {peca::kCostas2},
                     false,
                     livre && acionavel(cena, peca::kCostas2)});

    const Sprite& topo = cena[peca::kDiscartado];
    const auto c = topo.Visible ? cartaDaFigura(topo.Picture) : std::nullopt;
    itens.push_back({Papel::Descarte,
                     "Descarte",
                     c ? nomeDaCarta(*c) : "vazio",
                     {peca::kDiscartado},
                     false,
                     livre && c && acionavel(cena, peca::kDiscartado)});
    itens.push_back(maoDaMaquina(jogo, cena));

    // The line of messages carries the machine's last move, so that it is heard after its turn;
    // while the machine plays it only asks to wait, so that its steps are not read one by one.
    const Textos& t = cena.textos;
    std::string linha = texto::kAguardeMaquina;
    if (!jogo.maosEmJogo) {
        linha.clear();
        junta(linha, ultimaJogadaDaMaquina(jogo.historico));
        if (t.avisoVisivel) junta(linha, t.aviso);
        junta(linha, t.prompt);
        if (t.statusVisivel) junta(linha, t.status);
    }
    itens.push_back({Papel::Mensagens, linha, "", {}, false, false});

    const std::string& nome = jogo.modulo.nomeJogador.empty() ? "Você" : jogo.modulo.nomeJogador;
    itens.push_back({Papel::Placar,
                     "Placar",
                     nome + " " + t.placar1 + ", " + texto::kCpu + " " + t.placar2,
                     {peca::kPlacar1, peca::kPlacar2},
                     false,
                     false});

    // The two commands painted as words: the sort button, and the hint with its advice.
    if (cena[peca::kLabel4].Visible)
        itens.push_back({Papel::Ordenar,
                         t.label4,
                         "",
                         {peca::kLabel4},
                         false,
                         livre && cena[peca::kLabel4].Enabled});
    itens.push_back({Papel::Dica, "Dica", dica ? dica->texto : "", {}, false, livre});
    return itens;
}

} // namespace corvina
