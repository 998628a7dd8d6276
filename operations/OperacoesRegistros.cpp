#include "oryutils/registry_numbers/OryUtilsDocumentos.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseIE.hpp"

#include "operations/Vinculo.hpp"

namespace Ory {
namespace {

using C = OryUtils::TOryUtilsValidacoes;
using CIE = OryUtils::TOryUtilsValidacoesIE;
using D = OryUtils::TOryUtilsDocumentos;

/// A chain of callbacks of which each answers the value given for it.
bool EncadearResultados(const std::vector<bool>& AResultados, OryUtils::TTipoValidacaoResultadoMetodoRetorno ATipo) {
    std::vector<OryUtils::TValidacaoMetodoRetorno> metodos;
    for (const bool resultado : AResultados) metodos.emplace_back([resultado] { return resultado; });
    return C::ValidouMetodosRetorno(std::move(metodos), ATipo);
}

bool EhIsenta(std::u16string_view AIE) {
    CIE ie;
    ie.SetIE(AIE);
    return ie.Isenta();
}

std::u16string FormatarBase(std::u16string_view AModelo, std::u16string_view ATexto) {
    return std::u16string(CIE().FormatarBase(AModelo, ATexto));
}

int SomarBase(const std::vector<int>& APesos, std::u16string_view ABase) { return CIE().SomarBase(APesos, ABase); }

int BuscarSomaModulo11(const std::vector<int>& APesos, std::u16string_view ABase) {
    return CIE().BuscarSomaModulo11(APesos, ABase);
}

OryTypes::TResultStatus ValidarLista(const TListaDeTextos& AEnderecos) {
    OryTypes::TResultStatus status;
    C::ValidouListaEmail(AEnderecos, status);
    return status;
}

/// Of the two forms of a check the one without a control.
using TRegraDeTexto = bool(std::u16string_view);

// clang-format off
constexpr auto COperacoes = Ordenar(std::array{
    Operacao<C::ValidouCnpjCpf>("ValidouCnpjCpf"),
    Operacao<C::ValidouCnpjAlfanumerico>("ValidouCnpjAlfanumerico"),
    Operacao<C::FormatarCnpjAlfanumerico>("FormatarCnpjAlfanumerico"),
    Operacao<C::ValidouPIS>("ValidouPIS"),
    Operacao<C::ValidouCEI>("ValidouCEI"),
    Operacao<C::ValidouCNO>("ValidouCNO"),
    Operacao<C::ValidouCNH>("ValidouCNH"),
    Operacao<C::ValidouNovoFormatoCNH>("ValidouNovoFormatoCNH"),
    Operacao<C::ValidouFormatoAntigoCNH>("ValidouFormatoAntigoCNH"),
    Operacao<C::ValidouCodigoMunicipio>("ValidouCodigoMunicipio"),
    Operacao<C::ValidouCodigoMunicipioOficial>("ValidouCodigoMunicipioOficial"),
    Operacao<C::ValidouIE>("ValidouIE"),
    Operacao<C::ValidouCRC>("ValidouCRC"),
    Operacao<C::ValidouEmail>("ValidouEmail"),
    Operacao<ValidarLista>("ValidouListaEmail"),
    Operacao<Sobrecarga<TRegraDeTexto>(C::ValidouEnderecoIP)>("ValidouEnderecoIP"),
    Operacao<Sobrecarga<TRegraDeTexto>(C::ValidouData)>("ValidouData"),
    Operacao<Sobrecarga<TRegraDeTexto>(C::ValidouHora)>("ValidouHora"),
    Operacao<Sobrecarga<TRegraDeTexto>(C::ValidouDataHora)>("ValidouDataHora"),
    Operacao<C::ValidouCaractereControle>("ValidouCaractereControle"),
    Operacao<EncadearResultados>("ValidouMetodosRetorno"),
    Operacao<C::Iif>("Iif"),

    // The kinds of documents in force, by name.
    Operacao<D::ValidouDocumento>("ValidouDocumento"),
    Operacao<D::BuscarMotivoRecusa>("BuscarMotivoRecusa"),
    Operacao<D::BuscarTextoMotivoRecusa>("BuscarTextoMotivoRecusa"),
    Operacao<D::FormatarDocumento>("FormatarDocumento"),
    Operacao<D::LimparDocumento>("LimparDocumento"),
    Operacao<D::GerarDocumento>("GerarDocumento"),
    Operacao<D::InterpretarDocumento>("InterpretarDocumento"),
    Operacao<D::BuscarTiposDocumento>("BuscarTiposDocumento"),
    Operacao<D::BuscarDescricaoDocumento>("BuscarDescricaoDocumento"),

    // Of an IE object: what gives a value without the steps before it.
    Operacao<EhIsenta>("Isenta"),
    Operacao<FormatarBase>("FormatarBase"),
    Operacao<SomarBase>("SomarBase"),
    Operacao<BuscarSomaModulo11>("BuscarSomaModulo11"),
    Operacao<CIE::BuscarDigitoPadrao>("BuscarDigitoPadrao"),
});
// clang-format on
static_assert(NomesSaoUnicos(COperacoes));

}  // namespace

std::span<const TOperacao> BuscarOperacoesDeRegistros() noexcept { return COperacoes; }

}  // namespace Ory
