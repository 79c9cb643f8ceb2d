#include "players/qt/frm_nome.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>

#include "core/ajustes.h"
#include "players/qt/caixa_do_sistema.h"
#include "players/qt/frm_novo_jogador.h"
#include "players/qt/lugar_da_janela.h"

namespace corvina {

namespace {
const char* const kEstiloLista =
    "QComboBox { color: rgb(30,30,30); background: rgb(250,248,240); border: 1px solid "
    "rgb(214,180,92); border-radius: 3px; padding-left: 6px; }"
    "QComboBox QAbstractItemView { color: rgb(30,30,30); background: rgb(250,248,240); "
    "selection-background-color: rgb(214,180,92); }";

} // namespace

FrmNome::FrmNome(QWidget* dono, Module1& modulo, Armazem& armazem, Historicos& historicos, Som* som,
                 bool cancelavel)
    : JanelaDeFigura(dono, "frmnome", {420, 288}), modulo_(modulo), armazem_(armazem), som_(som),
      escolha_(modulo, armazem, historicos,
               {[this](const std::string& t) {
                    return perguntaDoSistema(this, QString::fromStdString(t), {},
                                             QMessageBox::Question);
                },
                [this] { abreNovoJogador(); },
                [this] {
                    if (som_) som_->iniciaMusica(modulo_.tocarMusica);
                },
                [this] {
                    if (som_) som_->paraMusica();
                }}) {
    setObjectName("FrmNome");
    setWindowTitle(kTitulo);
    alca(rotulo("Label1", "Informe quem vai jogar:", emPixels(510, 780, 4785, 255), 13, true));
    combo1_ = new QComboBox(this);
    combo1_->setObjectName("Combo1");
    combo1_->setGeometry(emPixels(510, 1065, 5295, 360));
    combo1_->setStyleSheet(kEstiloLista);
    combo1_->setMaxVisibleItems(12);
    // Each figure centred under its heading.
    const auto par = [this](const char* nc, const char* texto, int left, const char* nv) {
        rotulo(nc, texto, emPixels(left, 1545, 1100, 255), 11, false, QColor(214, 200, 160),
               Qt::AlignCenter);
        return rotulo(nv, "0", emPixels(left, 1785, 1100, 255), 13, true, QColor(240, 236, 220),
                      Qt::AlignCenter);
    };
    label10_ = par("Label2", "Jogos", 930, "Label10");
    label4_ = par("Label3", "Vitórias", 2010, "Label4");
    label5_ = par("Label11", "Derrotas", 3090, "Label5");
    label7_ = par("Label6", "Saldo", 4170, "Label7");
    label16_ = comando("Label16", "Excluir", emPixels(300, 2415, 2490, 255), [this] {
        escolha_.excluir();
        mostra();
    });
    label8_ = comando("Label8", "Cadastrar novo Jogador", emPixels(3180, 2415, 2715, 255), [this] {
        escolha_.cadastrar();
        mostra();
    });
    label8_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    check4_ = new QCheckBox(this);
    check4_->setObjectName("Check4");
    check4_->setAccessibleName("Modo assistido");
    check4_->setGeometry(emPixels(840, 2910, 195, 210));
    check4_->setStyleSheet("QCheckBox::indicator { width: 12px; height: 12px; }");
    const auto alterna = [this] {
        escolha_.alternaAssistido();
        mostra();
    };
    connect(check4_, &QCheckBox::clicked, this, alterna);
    // Clickable, but not commands: no hand over them. Set a little tighter, so that the second
    // line fits its narrower place.
    for (Comando* c : {comando("Label12", "Modo assistido:Informa o nº de trincas formadas",
                               emPixels(1095, 2835, 4470, 255), alterna, 11, false),
                       comando("Label13", "Habilita o botão \"Auto ordenar cartas\"",
                               emPixels(1095, 3030, 3015, 255), alterna, 11, false)}) {
        c->setCursor(Qt::ArrowCursor);
        QFont f = c->font();
        f.setLetterSpacing(QFont::AbsoluteSpacing, -0.3);
        c->setFont(f);
    }
    rotulo("Label18", "O Jogo termina quando um lado fizer 4 pontos",
           emPixels(180, 3435, 5655, 225), 11, false, QColor(214, 200, 160), Qt::AlignCenter);
    comando("Label9", "Jogar", emPixels(4725, 3900, 1185, 255), [this] {
        escolha_.jogar();
        accept();
    })->setAlignment(Qt::AlignCenter);
    label15_ = comando("Label15", "Cancelar", emPixels(3090, 3900, 1185, 255), [this] {
        escolha_.cancelar();
        reject();
    });
    label15_->setAlignment(Qt::AlignCenter);
    label14_ = rotulo("Label14", "Cancelar", emPixels(3090, 3900, 1185, 255), 12, true,
                      QColor(64, 64, 64), Qt::AlignCenter);
    connect(combo1_, &QComboBox::activated, this, [this](int i) {
        if (mostrando_) return;
        escolha_.selecionaLinha(i);
        mostra();
    });

    escolha_.carrega(cancelavel);
    label15_->setVisible(cancelavel);
    label14_->setVisible(!cancelavel);
    mostra();
    vigiaTeclas();
    CentraJanela(*this);
}

void FrmNome::mostra() {
    mostrando_ = true;
    QStringList lista;
    for (const std::string& nome : escolha_.lista()) lista << QString::fromStdString(nome);
    QStringList mostrada;
    for (int i = 0; i < combo1_->count(); ++i) mostrada << combo1_->itemText(i);
    if (mostrada != lista) { // refilled only when it changed, so an open list isn't disturbed
        combo1_->clear();
        combo1_->addItems(lista);
    }
    combo1_->setCurrentIndex(escolha_.selecionada());
    label10_->setText(QString::fromStdString(escolha_.jogos));
    label4_->setText(QString::fromStdString(escolha_.vitorias));
    label5_->setText(QString::fromStdString(escolha_.derrotas));
    label7_->setText(QString::fromStdString(escolha_.saldo));
    label16_->setText(QString::fromStdString(escolha_.legendaExcluir));
    check4_->setChecked(escolha_.assistido());
    label8_->habilita(escolha_.podeCadastrar());
    mostrando_ = false;
}

void FrmNome::abreNovoJogador() {
    FrmNovoJogador novo(this, modulo_, armazem_,
                        [this](const std::string& nome) { escolha_.adiciona(nome); });
    novo.exec();
    mostra();
}

void FrmNome::primeiraAtivacao() {
    setFocus(); // not the list's
    escolha_.primeiraAtivacao();
    mostra();
}

bool FrmNome::tecla(int key) {
    // Escape is Cancelar where the window offers it (opened from the toolbar), else nothing.
    if (key == Qt::Key_Escape && label15_->isVisible()) {
        label15_->aciona();
        return true;
    }
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    escolha_.jogar();
    accept();
    return true;
}

void FrmNome::done(int resultado) {
    // However it closes, the music stops and the name follows the selection.
    if (!escolha_.fechada()) escolha_.fecha();
    JanelaDeFigura::done(resultado);
}

} // namespace corvina
