#include "players/settings.h"

#include <QSettings>

#include "core/ajustes.h"
#include "players/lugar_do_ajuste.h"

namespace corvina {

namespace {
QString caminho(const std::string& chave, const std::string& nome) {
    const LugarDoAjuste l = lugarDoAjuste(chave, nome);
    return QString::fromStdString(l.grupo + "/" + l.nome);
}
} // namespace

Settings::Settings()
    : s_(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, "Lunaris",
                                     kTitulo)) {}

Settings::Settings(const QString& arquivoIni)
    : s_(std::make_unique<QSettings>(arquivoIni, QSettings::IniFormat)) {}

Settings::~Settings() = default;

std::string Settings::le(const std::string& chave, const std::string& nome,
                         const std::string& padrao) {
    const std::string valor = s_->value(caminho(chave, nome)).toString().toStdString();
    return valor.empty() ? padraoDeLeitura(padrao) : valor;
}

bool Settings::grava(const std::string& chave, const std::string& nome, const std::string& valor) {
    s_->setValue(caminho(chave, nome), QString::fromStdString(valor));
    s_->sync();
    return s_->status() == QSettings::NoError;
}

} // namespace corvina
