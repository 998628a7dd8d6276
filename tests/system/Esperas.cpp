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

bool EsperarComando() { return ExecutarComandoComRetorno(Testes::Comando(u"viver 2000")).empty(); }

bool EsperarElevado() {
    TOryUtilsSistema sistema;
    sistema.SetAtivarExecucaoComandosModoAdministrador(false);
    return sistema.ExecutouComandoModoAdministrador(nullptr, Testes::ProgramaAuxiliar().u16string(), u"viver 2000", u"",
                                                    true);
}

TEST(Esperas, OProcessadorDescansaEAsMensagensFluem) {
    constexpr std::pair<const char*, bool (*)()> CEsperas[] = {
        {"command", EsperarComando},
        {"elevated call", EsperarElevado},
        {"start of a service", [] { return IniciarServico(AbrirSemPressa, {}, {}); }},
        {"stop of a service", [] { return PararServico(AbrirSemPressa, {}, {}, 60); }},
    };
    // What is there again whenever the messages have been processed.
    constexpr std::pair<const char*, void (*)()> CMensagens[] = {
        {"no message", [] {}},
        {"the end of the program", ::Testes::EnviarFimDoPrograma},
        {"another message", ::Testes::EnviarMensagemAEstaThread},
    };
    for (const auto& [espera, esperar] : CEsperas)
        for (const auto& [mensagem, enviar] : CMensagens) {
            int vezes = 0;
            const Testes::TAoProcessarMensagens aoProcessar([&] {
                ++vezes;
                ::Testes::RetirarMensagens();
                enviar();
            });
            enviar();
            const milliseconds antes = ::Testes::BuscarTempoDeProcessador();
            EXPECT_TRUE(esperar()) << espera;
            const milliseconds gasto = ::Testes::BuscarTempoDeProcessador() - antes;
            ::Testes::RetirarMensagens();
            EXPECT_LT(gasto.count(), 100) << espera << ", " << mensagem;
            EXPECT_GT(vezes, 10) << espera << ", " << mensagem;
        }
}

}  // namespace
}  // namespace OryUtils
