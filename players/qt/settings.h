#pragma once
// The one owner of the per-user store: text values under keys, as the game reads and writes
// them. Nothing else touches QSettings.

#include <QMap>
#include <QString>
#include <memory>
#include <string>

#include "core/armazem.h"

class QSettings;

namespace corvina {

class Settings : public Armazem {
  public:
    Settings(); // the user's own file, arquivoDeAjustes()
    // A file of the caller's. One that is not a regular file, or can't be read, is left alone
    // and the settings last for this run only; one too large or damaged to be settings is
    // moved aside (".danificado") and a new one begun.
    explicit Settings(const QString& arquivoIni);
    ~Settings() override;
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    std::string le(const std::string& chave, const std::string& nome,
                   const std::string& padrao) override;
    // True when the value is known to be stored. A store that can't be written loses the
    // value and the game goes on.
    bool grava(const std::string& chave, const std::string& nome,
               const std::string& valor) override;
    // The file is rewritten once, atomically (a new file renamed over the old), at the end of
    // the outermost batch.
    void abreLote() override { ++lote_; }
    void fechaLote() override;

    // Whether the values reach the disk (false: kept for this run only).
    bool persistente() const { return s_ != nullptr; }

  private:
    QString arquivo_;
    std::unique_ptr<QSettings> s_;
    QMap<QString, QString> soNestaVez_; // by the same paths as in the file
    int lote_ = 0;                      // batches open
    bool pendente_ = false;             // values set since the file was last written
};

} // namespace corvina
