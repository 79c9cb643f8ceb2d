#include "table/vista_de_cena.h"

#include <cmath>

namespace corvina {

namespace {
inline constexpr float kDestaque = 60; // a raised card stands this much higher
inline constexpr int kPassoDoVoo = 5;  // ms between two steps of a flight
inline constexpr int kLugaresNaPilha = 5;
} // namespace

Figura VistaDeCena::faceDe(int16 naipe, int16 valor, Figura senao) const {
    if (naipe < 1 || naipe > kNaipes || valor < 1 || valor > kValores) return senao;
    return figuraDaFace(naipe, valor);
}

void VistaDeCena::apresentacartasdojog(int16 inicio, int16 fim) {
    const Mesa& m = jogo_->mesa;
    const int ate = fim == 0 ? m.qtdJog : fim;
    Sprite& intermediario = cena_[{Parte::intermediario}];
    for (int i = inicio; i <= ate; ++i) {
        // A suit out of range leaves the passing picture as it was.
        intermediario.Picture = faceDe(m.jogNaipe[i], m.jogValor[i], intermediario.Picture);
        cena_[{Parte::cj, static_cast<int16>(i)}].Picture = intermediario.Picture;
    }
    for (int i = 1; i <= kCartasNaMao; ++i)
        cena_[{Parte::cj, static_cast<int16>(i)}].Visible = true;
    cena_[{Parte::cj, kCasaCompra}].Visible = m.qtdJog != kCartasNaMao;
    mudou();
}

void VistaDeCena::apresentacartasdamac(int16 most, int16 mostraesta) {
    const Mesa& m = jogo_->mesa;
    constexpr int16 kTodasAbertas = 11;
    const int de = most == kTodasAbertas || m.macete ? 1 : most;
    Sprite& intermediario = cena_[{Parte::intermediario}];
    for (int i = de; i <= m.qtdMac; ++i) {
        if (most == kTodasAbertas || mostraesta == i || m.macete)
            intermediario.Picture = faceDe(m.macNaipe[i], m.macValor[i], intermediario.Picture);
        else
            intermediario.Picture = cena_[{Parte::costas}].Picture;
        cena_[{Parte::cm, static_cast<int16>(i)}].Picture = intermediario.Picture;
    }
    cena_[{Parte::cm, kCasaCompra}].Visible = m.qtdMac != kCartasNaMao;
    mudou();
}

void VistaDeCena::destaca(int16 index) {
    Mesa& m = jogo_->mesa;
    Gesto& g = cena_.gesto;
    if (m.qtdJog != kCasaCompra) return; // a hand of nine never rises
    g.destacada = index;
    for (int i = 1; i <= kCasaCompra; ++i) {
        Sprite& s = cena_[{Parte::cj, static_cast<int16>(i)}];
        const float topo = i == index ? g.yMao - kDestaque : g.yMao;
        if (s.Top != topo) s.Top = topo;
    }
    mudou();
}

void VistaDeCena::MostraDiscarts() {
    const int n = jogo_->modulo.qtdDescarte;
    const auto fan = [](int i) { return Peca{Parte::Picture8, static_cast<int16>(i)}; };
    if (n >= 1) {
        const int k = n > kLugaresNaPilha ? kLugaresNaPilha - 1 : n - 1;
        cena_[fan(k)].Picture = cena_[{Parte::Discartado}].Picture;
    }
    if (n == 2) cena_[fan(0)].Picture = cena_[{Parte::antes}].Picture;
    for (int i = 0; i < kLugaresNaPilha; ++i) cena_[fan(i)].Visible = i < n;
    Sprite& topo = cena_[{Parte::Discartado}];
    topo.Visible = false;
    const Sprite& lugar = cena_[fan(n > kLugaresNaPilha - 1 ? kLugaresNaPilha - 1 : n)];
    topo.Left = lugar.Left;
    topo.Top = lugar.Top;
    mudou();
}

void VistaDeCena::Habilita(bool h) {
    for (const Peca p : {Peca{Parte::Picmover}, Peca{Parte::costas2}, Peca{Parte::Discartado}})
        cena_[p].Enabled = h;
    for (int i = 1; i <= kCasaCompra; ++i) cena_[{Parte::cj, static_cast<int16>(i)}].Enabled = h;
}

void VistaDeCena::Premover(int16 index) {
    Gesto& g = cena_.gesto;
    if (index == g.botaoAtivo) return;
    g.botaoAtivo = index; // 0 and 7 light none of the six
    mudou();
}

Tarefa<> VistaDeCena::voaCarta(Peca sprite, float alvoLeft, float alvoTop, double fator) {
    const double d = jogo_->modulo.velocidade * fator;
    const int passos = static_cast<int>(std::floor(d));
    if (passos <= 0) co_return; // no steps: the caller hands the picture on where it stands
    Sprite& s = cena_[sprite];
    const auto passoX = static_cast<float>(std::floor((s.Left - alvoLeft) / d));
    const auto passoY = static_cast<float>(std::floor((s.Top - alvoTop) / d));
    for (int i = 0; i < passos; ++i) {
        s.Left -= passoX;
        s.Top -= passoY;
        mudou();
        co_await espera(kPassoDoVoo); // the window paints the step meanwhile
    }
}

void VistaDeCena::aplicaContorno(Peca sprite, std::uint32_t) {
    processaEventos();
    cena_[sprite].contorno = true;
    mudou();
    processaEventos();
}

void VistaDeCena::mostraPeca(Peca peca, bool visivel) {
    cena_[peca].Visible = visivel;
    mudou();
}

void VistaDeCena::habilitaPeca(Peca peca, bool habilitada) {
    cena_[peca].Enabled = habilitada;
}

void VistaDeCena::ponteiro(Peca peca, Ponteiro p) {
    cena_[peca].MousePointer = p;
}

void VistaDeCena::copiaFigura(Peca destino, Peca origem) {
    cena_[destino].Picture = cena_.figuraDe(origem);
    mudou();
}

Lugar VistaDeCena::lugar(Peca peca) {
    return {cena_[peca].Left, cena_[peca].Top};
}

void VistaDeCena::poeLugar(Peca peca, Lugar l) {
    cena_[peca].Left = l.left;
    cena_[peca].Top = l.top;
    mudou();
}

void VistaDeCena::mostraPrompt(const std::string& texto) {
    cena_.textos.prompt = texto;
    mudou();
}

void VistaDeCena::mostraAviso(const std::string& texto) {
    cena_.textos.aviso = texto;
    cena_.textos.avisoVisivel = true;
    mudou();
}

void VistaDeCena::escondeAviso() {
    cena_.textos.avisoVisivel = false;
    mudou();
}

void VistaDeCena::mostraTrincas(const std::string& texto) {
    cena_.textos.status = texto;
    mudou();
}

void VistaDeCena::mostraPlacar(int16 jog, int16 mac) {
    cena_.textos.placar1 = std::to_string(jog);
    cena_.textos.placar2 = std::to_string(mac);
    mudou();
}

void VistaDeCena::mostraContagens(std::optional<int16> jog, std::optional<int16> mac) {
    if (jog) cena_.textos.label10 = std::to_string(*jog);
    if (mac) cena_.textos.label11 = std::to_string(*mac);
    mudou();
}

void VistaDeCena::mostraMesa() {
    const bool assistido = jogo_->modulo.assistido == 1;
    cena_.textos.statusVisivel = assistido;
    cena_.textos.imgNTrincasVisivel = !assistido;
    mudou();
}

void VistaDeCena::legendaOrdenar(const std::string& texto) {
    cena_.textos.label4 = texto;
    mudou();
}

} // namespace corvina
