#include "oryutils/dates/OryUtilsDatas.hpp"

#include "operations/Vinculo.hpp"

namespace Ory {
namespace {

using C = OryUtils::TOryUtilsDatas;

using FData = std::u16string(TDateTime);
using FDataAspas = std::u16string(TDateTime, bool);
using FDataTudo = std::u16string(TDateTime, OryUtils::TTipoFormatoData, std::u16string_view, bool);
using FDataTudoLivre = std::u16string(TDateTime, OryUtils::TTipoFormatacaoData, std::u16string_view, bool);
using FOrientacao = TDateTime(std::u16string_view, OryUtils::TTipoOrientacaoData);
using FOrientacaoLivre = TDateTime(std::u16string_view, OryUtils::TTipoOrientadaData);

std::u16string FormatarPorParametros(TDateTime AData, OryUtils::TTipoFormatoData ATipo, std::u16string_view AMascara,
                                     bool AAdicionarAspas) {
    return C::BuscarDataFormatada(OryUtils::TOryUtilsDatasFormatacaoDataIOP{
        .AdicionarAspas = AAdicionarAspas, .Mascara = std::u16string(AMascara), .Tipo = ATipo, .Data = AData});
}

// clang-format off
constexpr auto COperacoes = Ordenar(std::array{
    Operacao<C::BuscarPrimeiroDiaMes>("BuscarPrimeiroDiaMes"),
    Operacao<C::BuscarPrimeiroDiaMesCorrente>("BuscarPrimeiroDiaMesCorrente"),
    Operacao<C::BuscarUltimoDiaMes>("BuscarUltimoDiaMes"),
    Operacao<C::BuscarDataSemHora>("BuscarDataSemHora"),
    Operacao<C::BuscarHoraSemSegundos>("BuscarHoraSemSegundos"),
    Operacao<C::BuscarDescricaoDiaSemana>("BuscarDescricaoDiaSemana"),
    Operacao<C::BuscarDataPorExtenso>("BuscarDataPorExtenso"),
    Operacao<Sobrecarga<FData>(C::BuscarDataFormatada)>("BuscarDataFormatada"),
    Operacao<Sobrecarga<FDataAspas>(C::BuscarDataFormatada)>("BuscarDataFormatada:aspas"),
    Operacao<Sobrecarga<FDataTudo>(C::BuscarDataFormatada)>("BuscarDataFormatada:tudo"),
    Operacao<FormatarPorParametros>("BuscarDataFormatada:parametros"),
    Operacao<C::CalcularDiferencaEntreDatas>("CalcularDiferencaEntreDatas"),
    Operacao<C::BuscarDiasEntreDatas>("BuscarDiasEntreDatas"),
    Operacao<C::BuscarBimestre>("BuscarBimestre"),
    Operacao<C::BuscarTrimestre>("BuscarTrimestre"),
    Operacao<C::BuscarSemestre>("BuscarSemestre"),
    Operacao<C::BuscarPrimeiroMesDoBimestre>("BuscarPrimeiroMesDoBimestre"),
    Operacao<C::BuscarPrimeiroMesDoTrimestre>("BuscarPrimeiroMesDoTrimestre"),
    Operacao<C::BuscarPrimeiroMesDoQuadrimestre>("BuscarPrimeiroMesDoQuadrimestre"),
    Operacao<C::BuscarPrimeiroMesDoSemestre>("BuscarPrimeiroMesDoSemestre"),
    Operacao<C::BuscarDataFinalDoBimestre>("BuscarDataFinalDoBimestre"),
    // The operation of the class: the free function of this name never returns.
    Operacao<C::BuscarDataFinalDoTrimestre>("BuscarDataFinalDoTrimestre"),
    Operacao<C::BuscarDataFinalDoQuadrimestre>("BuscarDataFinalDoQuadrimestre"),
    Operacao<C::BuscarDataFinalDoSemestre>("BuscarDataFinalDoSemestre"),
    Operacao<C::EhDataValida>("EhDataValida"),
    Operacao<Sobrecarga<FOrientacao>(C::ConverterOrientacaoData)>("ConverterOrientacaoData"),
    Operacao<Sobrecarga<FOrientacaoLivre>(OryUtils::ConverterOrientacaoData)>("ConverterOrientacaoData:livre"),
    Operacao<C::ConverterDataParaFormatoXML>("ConverterDataParaFormatoXML"),
    Operacao<C::ConverterDataXMLParaFormatoNativo>("ConverterDataXMLParaFormatoNativo"),
    Operacao<C::ConverterMinutosParaMilisegundos>("ConverterMinutosParaMilisegundos"),
    Operacao<C::ConverterMilisegundosParaTempo>("ConverterMilisegundosParaTempo"),
    Operacao<C::BuscarDataHoraMedidaTempo>("BuscarDataHoraMedidaTempo"),
    Operacao<C::FormatarData>("FormatarData"),

    // Older names. Free functions of the same name as the operation need no entry of their own.
    Operacao<OryUtils::GetPrimeiroDiaMes>("GetPrimeiroDiaMes"),
    Operacao<OryUtils::GetPrimeiroDiaMesCorrente>("GetPrimeiroDiaMesCorrente"),
    Operacao<OryUtils::GetUltimoDiaMes>("GetUltimoDiaMes"),
    Operacao<OryUtils::GetDataSemHora>("GetDataSemHora"),
    Operacao<OryUtils::GetHoraSemSegundos>("GetHoraSemSegundos"),
    Operacao<OryUtils::GetDescricaoDiaSemana>("GetDescricaoDiaSemana"),
    Operacao<OryUtils::GetDataPorExtenso>("GetDataPorExtenso"),
    Operacao<Sobrecarga<FDataAspas>(OryUtils::GetDataFormatada)>("GetDataFormatada:aspas"),
    Operacao<Sobrecarga<FDataTudoLivre>(OryUtils::GetDataFormatada)>("GetDataFormatada:tudo"),
    Operacao<OryUtils::ConverterDataXML>("ConverterDataXML"),
});
// clang-format on
static_assert(NomesSaoUnicos(COperacoes));

}  // namespace

std::span<const TOperacao> BuscarOperacoesDeDatas() noexcept { return COperacoes; }

}  // namespace Ory
