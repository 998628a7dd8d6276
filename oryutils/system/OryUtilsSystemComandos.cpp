#include "oryutils/platform/CodificacaoAnsi.hpp"
#include "oryutils/platform/InicioDeProcessos.hpp"
#include "oryutils/platform/Prazo.hpp"
#include "oryutils/platform/Processos.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/SaidaDeComando.hpp"

#include <chrono>
#include <memory>
#include <optional>

namespace OryUtils {
namespace {

using Interno::TProcessoCapturado;

/// The application's messages are looked after at least so often.
constexpr std::chrono::milliseconds CIntervaloDasMensagens{20};
/// A command that prints nothing for so long has paused, and its last bytes become a chunk. It is longer than the
/// system keeps a running program waiting for the processor.
constexpr auto CPausa = std::chrono::milliseconds(100);

void ProcessarMensagens() { CosturaInterface().ProcessarMensagens(); }

void LerSaida(TProcessoCapturado& AProcesso, Interno::TSaidaDeComando& ASaida) {
    using TRelogio = std::chrono::steady_clock;
    std::vector<char> bloco(std::size_t{256} * 1024);
    auto ultimaLeitura = TRelogio::now();
    while (true) {
        std::size_t lidos = 0;
        const TProcessoCapturado::TLeitura leitura = AProcesso.Ler(bloco, CIntervaloDasMensagens, lidos);
        if (leitura == TProcessoCapturado::lcFim) return;
        if (leitura == TProcessoCapturado::lcBytes) {
            ASaida.Receber({bloco.data(), lidos});
            ultimaLeitura = TRelogio::now();
        } else if (TRelogio::now() - ultimaLeitura >= CPausa) {
            ASaida.FecharParte();
        }
        ProcessarMensagens();
    }
}

/// The output of a command line; none when the command cannot be started or the code page is not known.
std::optional<Interno::TSaidaDeComando> Executar(std::u16string_view ALinhaDeComando,
                                                 std::uint32_t APagina = CPaginaAnsi) {
    const auto decodificador = std::make_shared<Interno::TDecodificadorAnsi>(APagina);
    if (!decodificador->ConhecePagina()) return std::nullopt;
    Interno::TSaidaDeComando saida([=](std::string_view ABytes) { return decodificador->Decodificar(ABytes); });
    const std::unique_ptr<TProcessoCapturado> processo = TProcessoCapturado::Iniciar(ALinhaDeComando);
    if (!processo) return std::nullopt;
    LerSaida(*processo, saida);
    while (Interno::EsperarProcesso(processo->GetProcesso(), Interno::CEsperaSemLimite, true) != Interno::epTerminou)
        ProcessarMensagens();
    return saida;
}

}  // namespace

void TOryUtilsSistema::ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando,
                                                 std::vector<std::u16string>& ASaida) {
    ExecutouComandoComRetorno(ALinhaDeComando, ASaida);
}

std::u16string TOryUtilsSistema::ExecutarComandoComRetorno(std::u16string_view ALinhaDeComando) {
    auto saida = Executar(ALinhaDeComando);
    return saida ? saida->RetirarTexto() : std::u16string();
}

bool TOryUtilsSistema::ExecutouComandoComRetorno(std::u16string_view ALinhaDeComando,
                                                 std::vector<std::u16string>& ASaida, std::uint32_t APagina) {
    auto saida = Executar(ALinhaDeComando, APagina);
    if (saida) saida->ContinuarLista(ASaida);
    return saida.has_value();
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
        Interno::EsperarProcesso(*processo, std::chrono::milliseconds(AParametros.TempoLimiteProcesso), false);
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
    const Interno::TPrazo prazo{std::chrono::milliseconds(AMilissegundos)};
    for (auto resta = prazo.Resta(); resta.count() > 0; resta = prazo.Resta())
        if (Interno::EsperarMensagens(resta) == Interno::epMensagens) ProcessarMensagens();
}

}  // namespace OryUtils
