#include "players/qt/settings.h"

#include <QFile>
#include <QSettings>
#include <cstdio>

#include "core/ajustes.h"
#include "players/arquivo_regular.h"
#include "players/lugar_do_ajuste.h"
#include "players/qt/pastas.h"

namespace corvina {

namespace {
// Fifty players and the records of everyone ever deleted stay far below this.
inline constexpr std::size_t kMaiorArquivo = 1024 * 1024;

QString caminho(const std::string& chave, const std::string& nome) {
    const LugarDoAjuste l = lugarDoAjuste(chave, nome);
    return QString::fromStdString(l.grupo + "/" + l.nome);
}

// Keeps what a person may still recover under a name of its own.
bool poeDeLado(const QString& arquivo) {
    QString destino = arquivo + ".danificado";
    for (int n = 2; QFile::exists(destino); ++n)
        destino = arquivo + ".danificado" + QString::number(n);
    if (!QFile::rename(arquivo, destino)) return false;
    std::fprintf(stderr, "corvina: %s could not be read as settings; it was kept as %s\n",
                 qPrintable(arquivo), qPrintable(destino));
    return true;
}
} // namespace

Settings::Settings() : Settings(arquivoDeAjustes()) {}

Settings::Settings(const QString& arquivoIni) {
    const ArquivoLido lido = leArquivoRegular(arquivoIni.toStdString(), kMaiorArquivo);
    switch (lido.situacao) {
    case SituacaoDoArquivo::NaoRegular:
    case SituacaoDoArquivo::Ilegivel:
        std::fprintf(stderr, "corvina: %s can't be used; settings last for this run only\n",
                     qPrintable(arquivoIni));
        return;
    case SituacaoDoArquivo::Grande:
        if (!poeDeLado(arquivoIni)) return;
        break;
    default:
        break;
    }
    s_ = std::make_unique<QSettings>(arquivoIni, QSettings::IniFormat);
    if (s_->status() == QSettings::FormatError) {
        s_.reset();
        if (poeDeLado(arquivoIni))
            s_ = std::make_unique<QSettings>(arquivoIni, QSettings::IniFormat);
    }
}

Settings::~Settings() = default;

std::string Settings::le(const std::string& chave, const std::string& nome,
                         const std::string& padrao) {
    if (!s_) return soNestaVez_.le(chave, nome, padrao);
    const std::string valor = s_->value(caminho(chave, nome)).toString().toStdString();
    return valor.empty() ? padraoDeLeitura(padrao) : valor;
}

bool Settings::grava(const std::string& chave, const std::string& nome, const std::string& valor) {
    if (!s_) return soNestaVez_.grava(chave, nome, valor);
    s_->setValue(caminho(chave, nome), QString::fromStdString(valor));
    s_->sync();
    return s_->status() == QSettings::NoError;
}

} // namespace corvina
