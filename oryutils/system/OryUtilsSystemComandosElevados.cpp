#include "oryutils/platform/InicioDeProcessos.hpp"
#include "oryutils/platform/Prazo.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

namespace OryUtils {
namespace {

/// Messages end each single wait; ALimite holds for all of them together.
void EsperarComMensagens(const Interno::TProcessoIniciado& AProcesso, std::chrono::milliseconds ALimite) {
    const Interno::TPrazo prazo(ALimite);
    std::chrono::milliseconds resta = ALimite;
    while (Interno::EsperarProcesso(AProcesso, resta, true) == Interno::epMensagens) {
        CosturaInterface().ProcessarMensagens();
        resta = prazo.Resta();
        if (resta.count() == 0) return;
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
        EsperarComMensagens(*processo, std::chrono::milliseconds(AParametros.TempoLimiteProcesso));
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
