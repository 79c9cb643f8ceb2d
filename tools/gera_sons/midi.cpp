#include "midi.h"

#include <algorithm>
#include <cmath>
#include <fstream>

namespace gera {

namespace {
constexpr int kTiquesPorBatida = 480;

struct Evento {
    long tique;
    int ordem; // at one tick, notes end before others start
    std::vector<std::uint8_t> bytes;
};

void quantidadeVariavel(std::vector<std::uint8_t>& saida, std::uint32_t v) {
    std::uint8_t buf[5];
    int n = 0;
    buf[n++] = v & 0x7F;
    while ((v >>= 7) != 0) buf[n++] = static_cast<std::uint8_t>((v & 0x7F) | 0x80);
    while (n > 0) saida.push_back(buf[--n]);
}

long tique(double batida) {
    return std::lround(batida * kTiquesPorBatida);
}

std::vector<std::uint8_t> blocoDaTrilha(std::vector<Evento> eventos) {
    std::stable_sort(eventos.begin(), eventos.end(), [](const Evento& a, const Evento& b) {
        return a.tique != b.tique ? a.tique < b.tique : a.ordem < b.ordem;
    });
    std::vector<std::uint8_t> dados;
    long antes = 0;
    for (const Evento& e : eventos) {
        quantidadeVariavel(dados, static_cast<std::uint32_t>(e.tique - antes));
        dados.insert(dados.end(), e.bytes.begin(), e.bytes.end());
        antes = e.tique;
    }
    quantidadeVariavel(dados, 0);
    dados.insert(dados.end(), {0xFF, 0x2F, 0x00}); // end of track
    return dados;
}

std::vector<std::uint8_t> textoMeta(std::uint8_t tipo, const std::string& t) {
    std::vector<std::uint8_t> b{0xFF, tipo};
    quantidadeVariavel(b, static_cast<std::uint32_t>(t.size()));
    b.insert(b.end(), t.begin(), t.end());
    return b;
}

void poe32(std::ofstream& f, std::uint32_t v) {
    const char b[4] = {char(v >> 24), char(v >> 16), char(v >> 8), char(v)};
    f.write(b, 4);
}
void poe16(std::ofstream& f, std::uint16_t v) {
    const char b[2] = {char(v >> 8), char(v)};
    f.write(b, 2);
}
} // namespace

bool gravaMidi(const std::string& caminho, double bpm, const std::vector<Trilha>& trilhas) {
    std::vector<std::vector<std::uint8_t>> blocos;
    const auto micros = static_cast<std::uint32_t>(std::lround(60e6 / bpm));
    blocos.push_back(blocoDaTrilha({
        {0, 0, textoMeta(0x03, "Corvina")},
        {0,
         0,
         {0xFF, 0x51, 0x03, std::uint8_t(micros >> 16), std::uint8_t(micros >> 8),
          std::uint8_t(micros)}},
        {0, 0, {0xFF, 0x58, 0x04, 4, 2, 24, 8}}, // 4/4
    }));
    for (const Trilha& t : trilhas) {
        const auto c = static_cast<std::uint8_t>(t.canal & 0x0F);
        std::vector<Evento> ev{
            {0, 0, textoMeta(0x03, t.nome)},
            {0, 0, {std::uint8_t(0xC0 | c), std::uint8_t(t.programa)}},
            {0, 0, {std::uint8_t(0xB0 | c), 7, std::uint8_t(t.volume)}},
            {0, 0, {std::uint8_t(0xB0 | c), 91, std::uint8_t(t.reverb)}},
        };
        for (const Nota& n : t.notas) {
            const auto a = static_cast<std::uint8_t>(n.altura);
            ev.push_back({tique(n.batida), 2, {std::uint8_t(0x90 | c), a, std::uint8_t(n.forca)}});
            ev.push_back({tique(n.batida + n.duracao), 1, {std::uint8_t(0x80 | c), a, 0}});
        }
        blocos.push_back(blocoDaTrilha(std::move(ev)));
    }

    std::ofstream f(caminho, std::ios::binary);
    if (!f) return false;
    f.write("MThd", 4);
    poe32(f, 6);
    poe16(f, 1);
    poe16(f, static_cast<std::uint16_t>(blocos.size()));
    poe16(f, kTiquesPorBatida);
    for (const auto& b : blocos) {
        f.write("MTrk", 4);
        poe32(f, static_cast<std::uint32_t>(b.size()));
        f.write(reinterpret_cast<const char*>(b.data()), static_cast<std::streamsize>(b.size()));
    }
    return static_cast<bool>(f);
}

} // namespace gera
