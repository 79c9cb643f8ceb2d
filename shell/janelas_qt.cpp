#include "shell/janelas_qt.h"

#include "players/qt/frm_estatisticas.h"
#include "players/qt/frm_nivel.h"
#include "players/qt/frm_nome.h"
#include "players/qt/frm_opc.h"
#include "players/qt/frm_placar.h"
#include "players/qt/frm_records.h"
#include "players/qt/frm_revisao.h"
#include "players/qt/frm_tipos.h"
#include "update/qt/frm_sobre.h"

namespace corvina {

void JanelasQt::abre(Janela janela, const Placar& placar) {
    Module1& m = jogo_.modulo;
    switch (janela) {
    case Janela::FrmNome: {
        // Its cancel works only when a new match was asked for from the toolbar.
        const bool cancelavel = jogo_.cancelarNome;
        jogo_.cancelarNome = false;
        FrmNome(dono_, m, armazem_, historicos_, som_, cancelavel).exec();
        break;
    }
    case Janela::FrmPlacar: {
        const auto estatisticas = [this, &m](QWidget* placarAberto) {
            FrmEstatisticas(placarAberto, m, armazem_, historicos_, imagens_).exec();
        };
        // This match's hands, the one just ended chosen.
        std::function<void(QWidget*)> revisao;
        if (imagens_ && !jogo_.maos.empty())
            revisao = [this](QWidget* placarAberto) {
                FrmRevisao(placarAberto, *imagens_, maosDaPartida(jogo_.maos),
                           jogo_.maos.size() - 1)
                    .exec();
            };
        FrmPlacar(dono_, m, placar, estatisticas, revisao).exec();
        break;
    }
    case Janela::FrmOpc:
        FrmOpc(dono_, m, armazem_).exec();
        break;
    case Janela::FrmRecords:
        FrmRecords(dono_, m, armazem_, historicos_, som_, imagens_).exec();
        break;
    case Janela::frmtipos:
        FrmTipos(dono_, m, som_).exec();
        break;
    case Janela::FrmSobre:
        FrmSobre(dono_, versao_).exec();
        break;
    case Janela::FrmNivel:
        FrmNivel(dono_, m, armazem_).exec();
        break;
    }
}

} // namespace corvina
