#include "core/vista_nula.h"

#include <sstream>

namespace corvina {

namespace {
std::string num(double x) {
    std::ostringstream s;
    s << x;
    return s.str();
}
std::string opcional(std::optional<int16> x) {
    return x ? std::to_string(*x) : "-";
}
} // namespace

const char* nomeDaJanela(Janela janela) {
    switch (janela) {
    case Janela::FrmPlacar:
        return "FrmPlacar";
    case Janela::FrmNome:
        return "FrmNome";
    case Janela::FrmOpc:
        return "FrmOpc";
    case Janela::FrmRecords:
        return "FrmRecords";
    case Janela::frmtipos:
        return "frmtipos";
    case Janela::FrmSobre:
        return "FrmSobre";
    case Janela::FrmNivel:
        return "FrmNivel";
    }
    return "?";
}

std::string nomeDaPeca(Peca peca) {
    static constexpr const char* kNomes[] = {
        "Picmover",      "discartado2", "Discartado", "costas2", "costas",  "cj",    "cm",
        "Picture8",      "Picture3",    "Label4",     "Placar1", "Placar2", "antes", "vazio",
        "intermediario", "coracao",     "copa",       "espada",  "ramo",    "tipotC"};
    std::string nome = kNomes[static_cast<int>(peca.parte)];
    switch (peca.parte) {
    case Parte::cj:
    case Parte::cm:
    case Parte::Picture8:
    case Parte::Picture3:
    case Parte::coracao:
    case Parte::copa:
    case Parte::espada:
    case Parte::ramo:
    case Parte::tipotC:
        return nome + "(" + std::to_string(peca.indice) + ")";
    default:
        return nome;
    }
}

void VistaNula::anota(const std::function<std::string()>& linha) {
    if (aCadaChamada) aCadaChamada();
    if (registra) chamadas.push_back(linha());
}

std::vector<std::string> VistaNula::chamadasDe(const std::string& inicio) const {
    std::vector<std::string> achadas;
    for (const auto& c : chamadas)
        if (c.compare(0, inicio.size(), inicio) == 0) achadas.push_back(c);
    return achadas;
}

void VistaNula::apresentacartasdojog(int16 inicio, int16 fim) {
    anota([&] {
        return "apresentacartasdojog " + std::to_string(inicio) + " " + std::to_string(fim);
    });
}
void VistaNula::apresentacartasdamac(int16 most, int16 mostraesta) {
    anota([&] {
        return "apresentacartasdamac " + std::to_string(most) + " " + std::to_string(mostraesta);
    });
}
void VistaNula::destaca(int16 index) {
    anota([&] { return "destaca " + std::to_string(index); });
}
void VistaNula::MostraDiscarts() {
    anota([&] { return "MostraDiscarts"; });
}
void VistaNula::Habilita(bool h) {
    anota([&] { return std::string("Habilita ") + (h ? "1" : "0"); });
}
void VistaNula::Premover(int16 index) {
    anota([&] { return "Premover " + std::to_string(index); });
}
Tarefa<> VistaNula::voaCarta(Peca sprite, float, float, double fator) {
    anota([&] { return "voaCarta " + nomeDaPeca(sprite) + " " + num(fator); });
    co_return;
}
void VistaNula::aplicaContorno(Peca sprite, std::uint32_t) {
    anota([&] { return "aplicaContorno " + nomeDaPeca(sprite); });
}
void VistaNula::mostraPeca(Peca peca, bool visivel) {
    anota([&] { return "mostraPeca " + nomeDaPeca(peca) + (visivel ? " 1" : " 0"); });
}
void VistaNula::habilitaPeca(Peca peca, bool habilitada) {
    anota([&] { return "habilitaPeca " + nomeDaPeca(peca) + (habilitada ? " 1" : " 0"); });
}
void VistaNula::ponteiro(Peca peca, Ponteiro p) {
    anota(
        [&] { return "ponteiro " + nomeDaPeca(peca) + " " + std::to_string(static_cast<int>(p)); });
}
void VistaNula::copiaFigura(Peca destino, Peca origem) {
    anota([&] { return "copiaFigura " + nomeDaPeca(destino) + " " + nomeDaPeca(origem); });
}
Lugar VistaNula::lugar(Peca) {
    return {};
}
void VistaNula::poeLugar(Peca, Lugar) {}
void VistaNula::mostraPrompt(const std::string& texto) {
    anota([&] { return "mostraPrompt " + texto; });
}
void VistaNula::mostraAviso(const std::string& texto) {
    anota([&] { return "mostraAviso " + texto; });
}
void VistaNula::escondeAviso() {
    anota([&] { return "escondeAviso"; });
}
void VistaNula::mostraTrincas(const std::string& texto) {
    anota([&] { return "mostraTrincas " + texto; });
}
void VistaNula::mostraPlacar(int16 jog, int16 mac) {
    anota([&] { return "mostraPlacar " + std::to_string(jog) + " " + std::to_string(mac); });
}
void VistaNula::mostraContagens(std::optional<int16> jog, std::optional<int16> mac) {
    anota([&] { return "mostraContagens " + opcional(jog) + " " + opcional(mac); });
}
void VistaNula::mostraMesa() {
    anota([&] { return "mostraMesa"; });
}
void VistaNula::legendaOrdenar(const std::string& texto) {
    anota([&] { return "legendaOrdenar " + texto; });
}
int VistaNula::caixaMensagem(const std::string& texto, int estilo, const std::string& titulo) {
    anota([&] { return "caixaMensagem " + texto + "|" + std::to_string(estilo) + "|" + titulo; });
    return aoPerguntar ? aoPerguntar(texto) : kBotaoOk;
}
void VistaNula::preparaPlacar(const Placar& placar) {
    anota([&] {
        return "preparaPlacar " + placar.manchete + "|" + std::to_string(placar.pontosJog) + "|" +
               std::to_string(placar.pontosMac) + "|" + (placar.pisca ? "1" : "0");
    });
    if (aoPrepararPlacar) aoPrepararPlacar(placar);
}
void VistaNula::abreJanela(Janela janela) {
    anota([&] { return std::string("abreJanela ") + nomeDaJanela(janela); });
    if (aoAbrirJanela) aoAbrirJanela(janela);
}
void VistaNula::tocaSom(const std::string& arquivo, bool aguarda) {
    anota([&] { return "tocaSom " + arquivo + (aguarda ? " 1" : " 0"); });
}
bool VistaNula::adia(int milissegundos, std::coroutine_handle<>) {
    anota([&] { return "espera " + std::to_string(milissegundos); });
    return false; // no time passes here
}
void VistaNula::processaEventos() {
    anota([&] { return "processaEventos"; });
}
std::string VistaNula::leAjuste(const std::string& chave, const std::string& nome,
                                const std::string& padrao) {
    anota([&] { return "leAjuste " + nome; });
    return armazem.le(chave, nome, padrao);
}
bool VistaNula::gravaAjuste(const std::string& chave, const std::string& nome,
                            const std::string& valor) {
    anota([&] { return "gravaAjuste " + nome + " " + valor; });
    return armazem.grava(chave, nome, valor);
}

} // namespace corvina
