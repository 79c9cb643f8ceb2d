#pragma once
// The one owner of the per-user store: text values under keys, as the game reads and writes
// them. Nothing else touches QSettings.

#include <QString>
#include <memory>
#include <string>

class QSettings;

namespace corvina {

class Settings {
  public:
    Settings(); // the platform's per-user settings of "Lunaris" / "Corvina"
    explicit Settings(const QString& arquivoIni); // a file of its own, for tests
    ~Settings();
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    // padrao when the value is absent or empty; a default of "True" reads as "1".
    std::string le(const std::string& chave, const std::string& nome, const std::string& padrao);
    // True when the value is known to be stored. A store that can't be written loses the
    // value and the game goes on.
    bool grava(const std::string& chave, const std::string& nome, const std::string& valor);

  private:
    std::unique_ptr<QSettings> s_;
};

} // namespace corvina
