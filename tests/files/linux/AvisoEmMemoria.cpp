// What the memory says of a pipe, beside what the system says.
#include "oryutils/platform/linux/AvisoEmMemoria.hpp"

#include <gtest/gtest.h>

#include <array>
#include <poll.h>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using OryUtils::Interno::TAvisoEmMemoria;
using OryUtils::Interno::TDescritor;

namespace {

struct TCano {
    std::array<int, 2> Pontas = [] {
        std::array<int, 2> pontas{-1, -1};
        EXPECT_EQ(::pipe(pontas.data()), 0);
        return pontas;
    }();
    TDescritor Leitura{Pontas[0]};
    TDescritor Escrita{Pontas[1]};

    void Por() const { EXPECT_EQ(::write(Escrita.Get(), "x", 1), 1); }
    void Esvaziar() const {
        std::array<char, 64> bytes{};
        for (pollfd estado{Leitura.Get(), POLLIN, 0}; ::poll(&estado, 1, 0) == 1;)
            EXPECT_GT(::read(Leitura.Get(), bytes.data(), bytes.size()), 0);
    }
};

int EsperarFilho(pid_t AFilho) {
    int fim = -1;
    EXPECT_EQ(::waitpid(AFilho, &fim, 0), AFilho);
    return fim;
}

}  // namespace

TEST(AvisoEmMemoria, NuncaCalaOQueVeio) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937 gerador(semente);
    const TCano cano;
    TAvisoEmMemoria aviso(cano.Leitura.Get());
    EXPECT_TRUE(aviso.PodeTerVindo()) << "not armed";
    int calados = 0;
    for (int i = 0; i < 2'000; ++i) {
        aviso.Armar();
        calados += !aviso.PodeTerVindo();
        switch (gerador() % 16) {
            case 0:
                if (const pid_t filho = ::fork(); filho == 0) {
                    cano.Por();
                    ::_exit(0);
                } else {
                    ASSERT_EQ(EsperarFilho(filho), 0);
                }
                break;
            case 1:
                std::thread([&] { cano.Por(); }).join();
                break;
            case 2:
                cano.Por();
                aviso.Armar();  // with something there already
                break;
            default:
                cano.Por();
        }
        ASSERT_TRUE(aviso.PodeTerVindo());
        ASSERT_TRUE(aviso.PodeTerVindo()) << "until it is armed again";
        cano.Esvaziar();
    }
    // Where the system gives no ring it never is quiet; anything between would be a mistake.
    EXPECT_TRUE(calados == 0 || calados == 2'000) << calados;
}

TEST(AvisoEmMemoria, SoServeAQuemArmou) {
    const TCano cano;
    TAvisoEmMemoria aviso(cano.Leitura.Get());
    aviso.Armar();
    std::thread([&] {
        EXPECT_TRUE(aviso.PodeTerVindo());
        aviso.Armar();
        EXPECT_TRUE(aviso.PodeTerVindo()) << "another thread takes nothing over";
    }).join();
    if (const pid_t filho = ::fork(); filho == 0) {
        bool certo = aviso.PodeTerVindo();
        aviso.Armar();
        certo = certo && aviso.PodeTerVindo();
        ::_exit(certo ? 0 : 1);
    } else {
        EXPECT_EQ(EsperarFilho(filho), 0) << "a child of fork";
    }
    cano.Por();
    EXPECT_TRUE(aviso.PodeTerVindo());
}

TEST(AvisoEmMemoria, SemDescritorNaoCala) {
    TAvisoEmMemoria aviso(-1);
    aviso.Armar();
    EXPECT_TRUE(aviso.PodeTerVindo());
}
