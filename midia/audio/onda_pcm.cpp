#include "midia/audio/onda_pcm.h"

namespace corvina {

namespace {
std::uint32_t le32(std::string_view b, std::size_t i) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(b[i])) |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b[i + 1])) << 8 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b[i + 2])) << 16 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b[i + 3])) << 24;
}
std::uint16_t le16(std::string_view b, std::size_t i) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(b[i]) |
                                      static_cast<unsigned char>(b[i + 1]) << 8);
}
inline constexpr int kTaxaMinima = 8000, kTaxaMaxima = 192000;
inline constexpr std::uint16_t kFormatoPcm = 1;
} // namespace

int OndaPcm::milissegundos() const {
    const long long porSegundo = static_cast<long long>(taxa) * canais * (bitsPorAmostra / 8);
    return porSegundo == 0 ? 0 : static_cast<int>(tamanho * 1000 / porSegundo);
}

std::optional<OndaPcm> leOndaPcm(std::string_view b) {
    if (b.size() < 12 || b.substr(0, 4) != "RIFF" || b.substr(8, 4) != "WAVE") return std::nullopt;
    OndaPcm onda;
    bool temFormato = false;
    for (std::size_t i = 12; i + 8 <= b.size();) {
        const std::string_view id = b.substr(i, 4);
        const std::uint64_t tam = le32(b, i + 4);
        const std::size_t corpo = i + 8;
        if (id == "fmt ") {
            if (tam < 16 || corpo + 16 > b.size()) return std::nullopt;
            if (le16(b, corpo) != kFormatoPcm) return std::nullopt;
            onda.canais = le16(b, corpo + 2);
            onda.taxa = static_cast<int>(le32(b, corpo + 4));
            onda.bitsPorAmostra = le16(b, corpo + 14);
            temFormato = true;
        } else if (id == "data") {
            if (!temFormato || (onda.canais != 1 && onda.canais != 2) ||
                (onda.bitsPorAmostra != 8 && onda.bitsPorAmostra != 16) ||
                onda.taxa < kTaxaMinima || onda.taxa > kTaxaMaxima)
                return std::nullopt;
            const std::size_t quadro =
                static_cast<std::size_t>(onda.canais) * onda.bitsPorAmostra / 8;
            const std::size_t ha = b.size() - corpo;
            onda.inicio = corpo;
            onda.tamanho = (tam < ha ? static_cast<std::size_t>(tam) : ha) / quadro * quadro;
            if (onda.tamanho == 0) return std::nullopt;
            return onda;
        }
        i = corpo + tam + (tam & 1);
    }
    return std::nullopt;
}

} // namespace corvina
