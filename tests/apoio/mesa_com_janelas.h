#pragma once
// The real table with its small windows, offscreen: a store of its own, sound recorded instead of
// played, and helpers to find, type into and click the parts of a window by their names.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <functional>
#include <string>
#include <vector>

#include "apoio/janela_modal.h"
#include "apoio/mesa_na_tela.h"
#include "apoio/som_gravado.h"
#include "core/ativacao.h"
#include "machine/classico.h"
#include "midia/audio/som.h"
#include "shell/janelas_qt.h"
#include "update/versao.h"

namespace corvina::teste {

template <class T = QWidget> inline T* parte(QWidget* janela, const char* nome) {
    T* p = janela->findChild<T*>(nome);
    EXPECT_NE(p, nullptr) << nome;
    return p;
}

// Typed as a person would, accents included.
inline void digita(QWidget* w, const QString& texto) {
    for (const QChar c : texto)
        QTest::sendKeyEvent(QTest::Click, w, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

inline void clica(QWidget* janela, const char* nome) {
    QTest::mouseClick(parte(janela, nome), Qt::LeftButton);
}

struct Mesa : testing::Test, BaseDaMesa {
    OndasGravadas ondas;
    MidiGravado midi;
    std::string sons = pastaDosSons().toStdString();
    Som som{sons, ondas, midi};
    AcasoSemente acaso{7};
    Classico classico;
    Jogo jogo{vista, acaso, classico};
    JanelasQt janelas{jogo, settings, banco, &som, versaoDoPrograma()};
    JanelaMesa janela{jogo, vista, imagens};

    Mesa() {
        vista.liga(jogo);
        vista.som(&som);
        vista.janelas(&janelas);
        janelas.dono(&janela);
        janelas.imagens(&imagens);
        teste::janelasEsperadas().clear();
    }
    ~Mesa() override {
        for (const auto& [nome, feito] : teste::janelasEsperadas())
            EXPECT_TRUE(*feito) << nome << " never opened";
    }
    void lista(std::initializer_list<const char*> nomes) {
        int n = 1;
        for (const char* nome : nomes) settings.grava(chaveBase(), ajuste::jogador(n++), nome);
    }
    // The table up and dealt, the choice of player answered by `escolha`.
    void abre(std::function<void(QWidget*)> escolha) {
        Form_Load(jogo);
        quandoAbrir("FrmNome", std::move(escolha));
        janela.show();
        for (int i = 0; i < 200 && jogo.mesa.qtdJog == 0; ++i) QTest::qWait(5);
        ASSERT_EQ(jogo.mesa.qtdJog, 9) << "the first activation dealt";
        ondas.tocadas.clear();
        midi.comandos.clear();
    }
    void tecla(Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QTest::keyClick(&janela, k, m);
    }
    std::string ajuste(const char* nome) { return settings.le(chaveBase(), nome, ""); }
    // The files played, by name, in order.
    std::vector<std::string> tocados() const {
        std::vector<std::string> nomes;
        for (const std::string& t : ondas.tocadas) nomes.push_back(t.substr(t.rfind('/') + 1));
        return nomes;
    }
};

} // namespace corvina::teste
