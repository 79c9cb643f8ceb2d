// The fast count against the try-by-try walk, on many random hands: same count, same group
// list, same free slots, the hand left alone.

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

#include "core/contagem.h"
#include "core/contagem_de_cartas.h"

namespace corvina {
namespace {

// Draws a hand from two packs, or from a small corner of them, where trincas abound.
class Sorteador {
  public:
    explicit Sorteador(unsigned semente) : gerador_(semente) {}

    std::vector<Carta> mao(int qtd, int valores, int naipes) {
        std::vector<Carta> monte;
        for (int copia = 0; copia < 2; ++copia)
            for (int n = 1; n <= naipes; ++n)
                for (int v = 1; v <= valores; ++v)
                    monte.push_back({static_cast<int16>(valorBase_ + v), static_cast<int16>(n)});
        std::shuffle(monte.begin(), monte.end(), gerador_);
        monte.resize(qtd);
        return monte;
    }
    void base(int valorBase) { valorBase_ = valorBase; }
    std::mt19937& gerador() { return gerador_; }

  private:
    std::mt19937 gerador_;
    int valorBase_ = 0;
};

void confere(const std::vector<Carta>& cartas, Lado lado, bool curta) {
    Mesa rapida;
    Mao mao = maoDe(rapida, lado);
    mao.qtd = static_cast<int16>(cartas.size());
    for (std::size_t i = 0; i < cartas.size(); ++i)
        poeCarta(mao.valor, mao.naipe, static_cast<int>(i + 1), cartas[i]);
    Mesa literal = rapida;

    const int16 a = TemQuantosGrupos(rapida, lado, curta);
    const int16 b = TemQuantosGruposLiteral(literal, lado, curta);
    const auto descreve = [&] {
        return escreveCartas(cartas) + (curta ? " (short)" : " (full)") +
               std::string(lado == Lado::Jog ? " Jog" : " Mac");
    };
    ASSERT_EQ(a, b) << descreve();
    ASSERT_EQ(rapida.qtdGrupo, literal.qtdGrupo) << descreve();
    ASSERT_EQ(rapida.grupoValor, literal.grupoValor) << descreve();
    ASSERT_EQ(rapida.grupoNaipe, literal.grupoNaipe) << descreve();
    ASSERT_EQ(rapida.cartaLivre, literal.cartaLivre) << descreve();
    ASSERT_EQ(rapida.jogValor, literal.jogValor) << descreve();
    ASSERT_EQ(rapida.jogNaipe, literal.jogNaipe) << descreve();
    ASSERT_EQ(rapida.macValor, literal.macValor) << descreve();
    ASSERT_EQ(rapida.macNaipe, literal.macNaipe) << descreve();
}

// Hands from the whole of two packs, from small corners where trincas abound, from the corner
// where melds wrap around the ace, and hands no deal can make (a third copy, too few cards).
TEST(ContagemDiferencial, AgreesWithTheLiteralCountOnRandomHands) {
    Sorteador s(20261123);
    std::uniform_int_distribution<int> valores(3, 6), naipes(2, 4), base(0, 7);
    const std::vector<Carta> canto = *lerCartas("12/1 13/1 1/1 2/1 11/1 3/1 12/4 13/4 1/4 2/4 11/4 "
                                                "3/4 12/1 13/1 1/1 2/1 12/4 13/4 1/4 2/4");
    const struct {
        const char* nome;
        int maos;
        std::function<std::vector<Carta>(int)> mao;
    } fontes[] = {
        {"two packs", 100000, [&](int i) { return s.mao(9 + i % 2, kValores, kNaipes); }},
        {"crowded", 50000,
         [&](int i) {
             const int nv = valores(s.gerador()), nn = naipes(s.gerador());
             s.base(std::min(base(s.gerador()), kValores - nv));
             auto m = s.mao(std::min(9 + i % 2, 2 * nv * nn), nv, nn);
             s.base(0);
             return m;
         }},
        {"around the ace", 30000,
         [&](int i) {
             auto m = canto;
             std::shuffle(m.begin(), m.end(), s.gerador());
             m.resize(9 + i % 2);
             return m;
         }},
    };
    for (const auto& f : fontes)
        for (int i = 0; i < f.maos; ++i) {
            const auto cartas = f.mao(i);
            const Lado lado = i % 4 < 2 ? Lado::Jog : Lado::Mac;
            confere(cartas, lado, false);
            confere(cartas, lado, true);
            if (HasFatalFailure()) return;
        }
    for (const char* texto : {"5/1 5/1 5/1 6/1 7/1 8/2 8/3 8/4 1/1", "5/1 6/1", "1/1 2/1 3/1"}) {
        confere(*lerCartas(texto), Lado::Jog, false);
        confere(*lerCartas(texto), Lado::Jog, true);
    }
}

// The machine's trying of a card in each place, against counting each place by the walk.
MelhorTroca trocaLiteral(const std::vector<Carta>& mao, Carta nova, bool descendo, bool curta) {
    MelhorTroca r;
    const int q = static_cast<int>(mao.size());
    for (int passo = 0; passo < q; ++passo) {
        const int i = descendo ? q - 1 - passo : passo;
        std::vector<Carta> troca = mao, aux(mao.size());
        troca[static_cast<std::size_t>(i)] = nova;
        const int16 p = contaCartasLiteral(troca, aux, curta).pontos;
        if (p > r.pontos) r = {p, i};
    }
    return r;
}

TEST(ContagemDiferencial, TryingACardInEachPlaceAgreesWithTheWalk) {
    Sorteador s(99);
    std::uniform_int_distribution<int> valores(3, kValores), naipes(1, kNaipes);
    for (int i = 0; i < 20000; ++i) {
        // Wide hands and crowded ones; the tenth card is the one tried.
        const int nv = i % 2 ? kValores : valores(s.gerador());
        const int nn = i % 2 ? kNaipes : naipes(s.gerador());
        s.base(0);
        auto dez = s.mao(std::min(10, 2 * nv * nn), nv, nn);
        const Carta nova = dez.back();
        dez.pop_back();
        for (const bool descendo : {false, true}) {
            const bool curta = i % 3 != 0;
            const MelhorTroca a = melhorTroca(dez, nova, descendo, curta);
            const MelhorTroca b = trocaLiteral(dez, nova, descendo, curta);
            ASSERT_EQ(a.pontos, b.pontos) << escreveCartas(dez) << " + " << escreveCarta(nova);
            ASSERT_EQ(a.casa, b.casa) << escreveCartas(dez) << " + " << escreveCarta(nova);
        }
    }
    // A third copy, and a card outside the packs: counted place by place all the same.
    const auto tres = *lerCartas("5/1 5/1 6/1 7/1 8/2 8/3 8/4 1/1 2/2");
    EXPECT_EQ(melhorTroca(tres, Carta{5, 1}, false, false).casa,
              trocaLiteral(tres, Carta{5, 1}, false, false).casa);
    EXPECT_EQ(melhorTroca(tres, Carta{0, 0}, true, true).pontos,
              trocaLiteral(tres, Carta{0, 0}, true, true).pontos);
}

} // namespace
} // namespace corvina
