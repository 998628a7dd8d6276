#include "oryutils/platform/InicioDeProcessos.hpp"
#include "oryutils/platform/interno/Prazo.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

namespace OryUtils {
namespace {

/// The limit is that of the whole wait, however often messages wake it: also where nobody takes them from the queue and
/// they wake every wait at once.
void EsperarComMensagens(const Interno::TProcessoIniciado& AProcesso, std::uint32_t ALimite) {
    const Interno::TPrazo prazo(ALimite);
    std::uint32_t resta = ALimite;
    while (Interno::EsperarProcesso(AProcesso, resta, true) == Interno::epMensagens) {
        CosturaInterface().ProcessarMensagens();
        resta = prazo.Resta();
        if (resta == 0) return;
    }
}

}  // namespace

bool TOryUtilsSistema::ExecutouComandoModoAdministrador(
    TOryUtilsSystemDadosComandoModoAdministradorIOP& AParametros) const {
    const auto processo = Interno::ExecutarPeloSistema({.Aplicacao = AParametros.Aplicacao,
                                                        .Parametros = AParametros.Parametros,
                                                        .Pasta = AParametros.Diretorio,
                                                        .Janela = AParametros.Handle,
                                                        .Elevar = FAtivarExecucaoComandosModoAdministrador,
                                                        .Exibir = AParametros.ExibirProcesso});
    if (!processo) return false;
    AParametros.IDProcesso = processo->ID;
    TOryUtilsSystemDadosRetornoProcessoModoAdminIOP retorno;
    retorno.CriouProcesso = true;
    retorno.IDProcesso = processo->ID;
    if (AParametros.MetodoRetornoCriacaoProcesso) AParametros.MetodoRetornoCriacaoProcesso(retorno);
    if (AParametros.BloquearTela && processo->ID != 0) {
        const std::shared_ptr<void> bloqueio = CosturaInterface().DesabilitarJanelas();
        EsperarComMensagens(*processo, AParametros.TempoLimiteProcesso);
    }
    return true;
}

bool TOryUtilsSistema::ExecutouComandoModoAdministrador(void* AHandle, std::u16string_view AAplicacao,
                                                        std::u16string_view AParametros, std::u16string_view ADiretorio,
                                                        bool AAguardar) const {
    TOryUtilsSystemDadosComandoModoAdministradorIOP dados;
    dados.Handle = AHandle;
    dados.Aplicacao = AAplicacao;
    dados.Parametros = AParametros;
    dados.Diretorio = ADiretorio;
    dados.BloquearTela = AAguardar;
    dados.ExibirProcesso = true;
    return ExecutouComandoModoAdministrador(dados);
}

}  // namespace OryUtils
