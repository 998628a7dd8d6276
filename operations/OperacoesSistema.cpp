#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/OryUtilsRegistry.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/RegrasDeRede.hpp"
#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "operations/Vinculo.hpp"

// Rules of the system's room that need no machine. What asks the machine or changes it is not callable: a request of
// another program runs no commands and ends no processes.

namespace Ory {
namespace {

using C = OryUtils::TOryUtilsSistema;

// The command writes its text in UTF-8, at once.
TListaDeTextos LinhasDaSaidaDeComando(std::u16string_view ASaida) {
    return OryUtils::Interno::LinhasDaSaidaDeComando(OryUtils::ParaUtf8(ASaida));
}

TListaDeTextos ListaIPLocalDaSaidaARP(std::u16string_view ASaida) {
    return OryUtils::Interno::ListarEnderecosDaSaidaARP(ASaida);
}

std::u16string InformacoesDetalhadas(std::u16string_view AUnidade, std::u16string_view ANome, std::int64_t ATotal,
                                     std::int64_t ALivre, OryUtils::TFormatoBytes AFormato) {
    return OryUtils::TOryUtilsSystemInfoDiscoRigidoIOP{ALivre, ATotal, std::u16string(ANome), AFormato,
                                                       std::u16string(AUnidade)}
        .GetInformacoesDetalhadas();
}

// clang-format off
constexpr auto COperacoes = Ordenar(std::array{
    Operacao<C::ExtrairEnderecoMACComandoARP>("ExtrairEnderecoMACComandoARP"),
    Operacao<C::FormatarBytes>("FormatarBytes"),
    Operacao<InformacoesDetalhadas>("InformacoesDetalhadas"),
    Operacao<LinhasDaSaidaDeComando>("LinhasDaSaidaDeComando"),
    Operacao<ListaIPLocalDaSaidaARP>("ListaIPLocalDaSaidaARP"),
    Operacao<OryUtils::TOryUtilsRegistro::ValidouValorLimiteCotaObjetosGDI>("ValidouValorLimiteCotaObjetosGDI"),
    Operacao<C::VarToIntDef>("VarToIntDef"),
});
// clang-format on
static_assert(NomesSaoUnicos(COperacoes));

}  // namespace

std::span<const TOperacao> BuscarOperacoesDeSistema() noexcept { return COperacoes; }

}  // namespace Ory
