#include "players/qt/settings.h"

#include <QFile>
#include <QSettings>
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

#include "core/ajustes.h"
#include "midia/arquivos/arquivo_regular.h"
#include "midia/pastas.h"
#include "players/ini.h"
#include "players/lugar_do_ajuste.h"

namespace corvina {

namespace {
// Fifty players and the records of everyone ever deleted stay far below this.
inline constexpr std::size_t kMaiorArquivo = 1024 * 1024;

// The file read and written by our own hand: values are texts, and none is ever turned into
// one of Qt's serialized types.
bool leFormato(QIODevice& dispositivo, QSettings::SettingsMap& mapa) {
    const QByteArray conteudo = dispositivo.read(kMaiorArquivo + 1);
    if (conteudo.size() > static_cast<qsizetype>(kMaiorArquivo)) return false;
    const std::string_view texto(conteudo.constData(), static_cast<std::size_t>(conteudo.size()));
    if (!pareceIni(texto)) return false;
    for (const auto& [chave, valor] : leIni(texto))
        mapa.insert(QString::fromStdString(chave), QString::fromStdString(valor));
    return true;
}

bool gravaFormato(QIODevice& dispositivo, const QSettings::SettingsMap& mapa) {
    ValoresIni valores;
    for (auto it = mapa.cbegin(); it != mapa.cend(); ++it)
        valores[it.key().toStdString()] = it.value().toString().toStdString();
    const std::string texto = escreveIni(valores);
    return dispositivo.write(texto.data(), static_cast<qint64>(texto.size())) ==
           static_cast<qint64>(texto.size());
}

QSettings::Format formatoDeTexto() {
    static const QSettings::Format formato =
        QSettings::registerFormat("ini", leFormato, gravaFormato);
    return formato;
}

// Whether the file may be written: absent, or a regular file. A pipe or a device put at its
// name while the game runs would hold the writing up for ever.
bool podeGravar(const QString& arquivo) {
    struct stat st {};
    return ::lstat(QFile::encodeName(arquivo).constData(), &st) != 0 ? errno == ENOENT
                                                                     : S_ISREG(st.st_mode);
}

QString caminho(const std::string& chave, const std::string& nome) {
    const LugarDoAjuste l = lugarDoAjuste(chave, nome);
    return QString::fromStdString(l.grupo + "/" + l.nome);
}

// Damaged files kept beside the store, the newest first: a file that keeps getting damaged
// can't fill the disk.
inline constexpr int kCopiasDanificadas = 3;

QString copiaDanificada(const QString& arquivo, int n) {
    return arquivo + ".danificado" + (n > 1 ? QString::number(n) : QString());
}

// Keeps what a person may still recover under a name of its own; the oldest of the copies
// already kept makes room.
bool poeDeLado(const QString& arquivo) {
    QFile::remove(copiaDanificada(arquivo, kCopiasDanificadas));
    for (int n = kCopiasDanificadas - 1; n >= 1; --n)
        if (QFile::exists(copiaDanificada(arquivo, n)))
            QFile::rename(copiaDanificada(arquivo, n), copiaDanificada(arquivo, n + 1));
    const QString destino = copiaDanificada(arquivo, 1);
    if (!QFile::rename(arquivo, destino)) return false;
    std::fprintf(stderr, "corvina: %s could not be read as settings; it was kept as %s\n",
                 qPrintable(arquivo), qPrintable(destino));
    return true;
}
} // namespace

Settings::Settings() : Settings(arquivoDeAjustes()) {}

Settings::Settings(const QString& arquivoIni) : arquivo_(arquivoIni) {
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
    s_ = std::make_unique<QSettings>(arquivoIni, formatoDeTexto());
    if (s_->status() == QSettings::FormatError) {
        s_.reset();
        if (poeDeLado(arquivoIni)) s_ = std::make_unique<QSettings>(arquivoIni, formatoDeTexto());
    }
}

Settings::~Settings() = default;

std::string Settings::le(const std::string& chave, const std::string& nome,
                         const std::string& padrao) {
    const QString c = caminho(chave, nome);
    const std::string valor = (s_ ? s_->value(c).toString() : soNestaVez_.value(c)).toStdString();
    return valor.empty() ? padraoDeLeitura(padrao) : valor;
}

bool Settings::grava(const std::string& chave, const std::string& nome, const std::string& valor) {
    if (s_ && !podeGravar(arquivo_)) {
        std::fprintf(stderr,
                     "corvina: %s is no longer a regular file; settings last for this run only\n",
                     qPrintable(arquivo_));
        // What was stored stays readable for the rest of the run.
        for (const QString& k : s_->allKeys()) soNestaVez_[k] = s_->value(k).toString();
        s_.reset();
    }
    if (!s_) {
        soNestaVez_[caminho(chave, nome)] = QString::fromStdString(valor);
        return true;
    }
    s_->setValue(caminho(chave, nome), QString::fromStdString(valor));
    if (lote_ > 0) {
        pendente_ = true;
        return true;
    }
    s_->sync();
    return s_->status() == QSettings::NoError;
}

void Settings::fechaLote() {
    if (lote_ == 0 || --lote_ > 0 || !pendente_) return;
    pendente_ = false;
    if (s_) s_->sync();
}

} // namespace corvina
