#include "oryutils/platform/InicioDeProcessos.hpp"
#include "oryutils/platform/Processos.hpp"
#include "oryutils/platform/interno/Prazo.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/SaidaDeComando.hpp"

#include <array>
#include <chrono>

namespace OryUtils {
namespace {

using Interno::TProcessoCapturado;

/// The application's messages are looked after at least so often, in milliseconds.
constexpr std::uint32_t CIntervaloDasMensagens = 20;
/// A producer silent for so long has paused: what it wrote last is a chunk of its own. One that the system merely stops
/// for a moment, in the middle of a long output, has not.
constexpr auto CPausa = std::chrono::milliseconds(100);

void ProcessarMensagens() { CosturaInterface().ProcessarMensagens(); }

void LerSaida(TProcessoCapturado& AProcesso, Interno::TSaidaDeComando& ASaida) {
    std::vector<char> bloco(std::size_t{256} * 1024);
    using TRelogio = std::chrono::steady_clock;
    auto ultimaLeitura = TRelogio::now();
    while (true) {
        std::size_t lidos = 0;
        const TProcessoCapturado::TLeitura leitura = AProcesso.Ler(bloco, CIntervaloDasMensagens, lidos);
        if (leitura == TProcessoCapturado::lcFim) break;
        if (leitura == TProcessoCapturado::lcBytes) {
            ASaida.Receber({bloco.data(), lidos});
            ultimaLeitura = TRelogio::now();
        } else if (TRelogio::now() - ultimaLeitura >= CPausa) {
            ASaida.FecharParte();
        }
        ProcessarMensagens();
    }
    ASaida.FecharParte();
}

void Executar(std::u16string_view ALinhaDeComando, Interno::TDestinoDaSaida& ADestino) {
    const std::unique_ptr<TProcessoCapturado> processo = TProcessoCapturado::Iniciar(ALinhaDeComando);
    if (!processo) return;
    Interno::TDecodificadorAnsi decodificador;
    Interno::TSaidaDeComando saida(ADestino,
                                   [&](std::string_view ABytes) { return decodificador.Decodificar(ABytes); });
    LerSaida(*processo, saida);
    while (Interno::EsperarProcesso(processo->GetProcesso(), Interno::CEsperaSemLimite, true) != Interno::epTerminou)
        ProcessarMensagens();
}

}  // namespace

void TOryUtilsSistema::ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando,
                                                 std::vector<std::u16string>& ASaida) {
    Interno::TSaidaEmLista lista(ASaida);
    Executar(ALinhaDeComando, lista);
}

std::u16string TOryUtilsSistema::ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando) {
    std::u16string texto;
    Interno::TSaidaEmTexto destino(texto);
    Executar(ALinhaDeComando, destino);
    return texto;
}

std::unique_ptr<TOryUtilsSystemDadosRetornoProcessoIOP> TOryUtilsSistema::CriarProcesso(
    TOryUtilsSystemDadosCriacaoProcessoIOP& AParametros) {
    const auto processo = Interno::CriarProcesso(AParametros.Comando, AParametros.ExibirProcesso);
    auto retorno = std::make_unique<TOryUtilsSystemDadosRetornoProcessoIOP>();
    if (processo) {
        AParametros.IDProcesso = processo->ID;
        retorno->CriouProcesso = true;
        retorno->InformacaoProcesso = {processo->Processo.Get(), processo->Thread.Get(), processo->ID,
                                       processo->IDThread};
    }
    if (AParametros.MetodoRetornoCriacaoProcesso) AParametros.MetodoRetornoCriacaoProcesso(*retorno);
    if (processo && AParametros.AguardarProcesso)
        Interno::EsperarProcesso(*processo, AParametros.TempoLimiteProcesso, false);
    return retorno;
}

bool TOryUtilsSistema::ExecutouComando(std::u16string_view AComando, bool AAguardar, bool AExibir) {
    TOryUtilsSystemDadosCriacaoProcessoIOP dados;
    dados.Comando = AComando;
    dados.AguardarProcesso = AAguardar;
    dados.ExibirProcesso = AExibir;
    return CriarProcesso(dados)->CriouProcesso;
}

bool TOryUtilsSistema::EstahRodandoComoAdministrador() { return Interno::EhAdministrador(); }
bool TOryUtilsSistema::EhSistemaOperacional64bits() { return Interno::EhProcessoDe32BitsEmSistemaDe64(); }

void TOryUtilsSistema::Dormir(std::uint32_t AMilissegundos) {
    const Interno::TPrazo prazo(AMilissegundos);
    while (const std::uint32_t resta = prazo.Resta())
        if (Interno::EsperarMensagens(resta) == Interno::epMensagens) ProcessarMensagens();
}

void ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando, std::vector<std::u16string>& ASaida) {
    TOryUtilsSistema::ExecutarComandoComRetorno(ALinhaDeComando, ASaida);
}
std::u16string ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando) {
    return TOryUtilsSistema::ExecutarComandoComRetorno(ALinhaDeComando);
}
bool ExecutarComando(std::u16string_view AComando, bool AAguardar, bool AExibir) {
    return TOryUtilsSistema::ExecutouComando(AComando, AAguardar, AExibir);
}
bool EhSistemaOperacional64bits() { return TOryUtilsSistema::EhSistemaOperacional64bits(); }

}  // namespace OryUtils
