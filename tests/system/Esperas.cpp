// What a wait of two seconds costs: the application's messages flow, and the processor rests.
#include "oryutils/system/interno/Servicos.hpp"

#include "system/Ambiente.hpp"
#include "system/Auxiliar.hpp"

#include <gtest/gtest.h>

#include <chrono>

namespace OryUtils {
namespace {

using namespace Interno;
using std::chrono::milliseconds;
using TRelogio = std::chrono::steady_clock;

constexpr milliseconds CEspera{2000};

/// A service that is on its way for the time of the wait and wishes for no time between two questions.
class TServicoSemPressa final : public TServico {
public:
    bool Iniciar() override { return Partir(sswServicoInicializacaoPendente, sswServicoRodando); }
    bool Parar() override { return Partir(sswServicoParadaPendente, sswServicoParado); }
    bool Excluir() override { return true; }
    std::optional<TSituacaoServico> Consultar() override {
        return TSituacaoServico{TRelogio::now() - FInicio < CEspera ? FPendente : FFim};
    }
    std::uint32_t BuscarIDProcesso() override { return 0; }

private:
    bool Partir(std::uint32_t APendente, std::uint32_t AFim) {
        FPendente = APendente;
        FFim = AFim;
        return true;
    }
    std::uint32_t FPendente = 0, FFim = 0;
    const TRelogio::time_point FInicio = TRelogio::now();
};

class TGerenciadorSemPressa final : public TGerenciadorServicos {
public:
    std::unique_ptr<TServico> AbrirServico(std::u16string_view, TAcessoServico) override {
        return std::make_unique<TServicoSemPressa>();
    }
    std::uintptr_t CriarServico(std::u16string_view, std::u16string_view, std::u16string_view) override { return 0; }
};

std::unique_ptr<TGerenciadorServicos> AbrirSemPressa(std::u16string_view, TAcessoGerenciador) {
    return std::make_unique<TGerenciadorSemPressa>();
}

TEST(Esperas, OProcessadorDescansaEAsMensagensFluem) {
    const std::pair<const char*, bool (*)()> casos[] = {
        {"start of a service", [] { return IniciarServico(AbrirSemPressa, {}, {}); }},
        {"stop of a service", [] { return PararServico(AbrirSemPressa, {}, {}, 60); }},
    };
    for (const auto& [nome, esperar] : casos) {
        int vezes = 0;
        const Testes::TAoProcessarMensagens aoProcessar([&] { ++vezes; });
        const milliseconds antes = ::Testes::BuscarTempoDeProcessador();
        EXPECT_TRUE(esperar()) << nome;
        EXPECT_LT((::Testes::BuscarTempoDeProcessador() - antes).count(), 100) << nome;
        EXPECT_GT(vezes, 20) << nome;
    }
}

}  // namespace
}  // namespace OryUtils
