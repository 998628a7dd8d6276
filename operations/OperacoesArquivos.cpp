#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"

#include "operations/Vinculo.hpp"

namespace Ory {
namespace {

using C = OryUtils::TOryUtilsFiles;
using OryUtils::TOryUtilsArquivoLog;

using FNomeDoLog = std::u16string(std::u16string_view, std::u16string_view, OryUtils::TTipoPeriodicidadeLog, TDateTime);

std::vector<int> DividirVersao(std::u16string_view AVersao) {
    std::uint16_t maior = 0, menor = 0, release = 0, build = 0;
    C::DividirVersao(AVersao, maior, menor, release, build);
    return {maior, menor, release, build};
}

TListaDeTextos OrdenarListaDeVersoes(const TListaDeTextos& AVersoes) {
    TListaDeTextos ordenadas = AVersoes;
    C::OrdenarListaDeVersoes(ordenadas);
    return ordenadas;
}

// clang-format off
constexpr auto COperacoes = Ordenar(std::array{
    Operacao<C::BuscarVersaoArquivo>("BuscarVersaoArquivo"),
    Operacao<C::CompararVersao>("CompararVersao"),
    Operacao<DividirVersao>("DividirVersao"),
    Operacao<C::FormatarVersaoArquivo>("FormatarVersaoArquivo"),
    Operacao<OrdenarListaDeVersoes>("OrdenarListaDeVersoes"),
    Operacao<C::EhArquivoEXE>("EhArquivoEXE"),
    Operacao<C::EhArquivoBPL>("EhArquivoBPL"),
    Operacao<C::EhArquivoDLL>("EhArquivoDLL"),
    Operacao<C::EhArquivoDAT>("EhArquivoDAT"),
    Operacao<C::EhArquivoINI>("EhArquivoINI"),
    Operacao<C::EhArquivoHTML>("EhArquivoHTML"),
    Operacao<C::EhArquivoVersionado>("EhArquivoVersionado"),
    Operacao<C::ExisteDiretorio>("ExisteDiretorio"),
    Operacao<C::ExtrairNomeDoArquivoSemExtensao>("ExtrairNomeDoArquivoSemExtensao"),
    Operacao<C::FormatarTamanhoArquivo>("FormatarTamanhoArquivo"),
    Operacao<Sobrecarga<FNomeDoLog>(TOryUtilsArquivoLog::FormatarNomeArquivoLog)>("FormatarNomeArquivoLog"),
    Operacao<OryUtils::GetVersionFromINI>("GetVersionFromINI"),
    Operacao<OryUtils::GetExtensionFromFile>("GetExtensionFromFile"),

    // Older names. Free functions of the same name as the operation need no entry of their own.
    Operacao<OryUtils::GetVersaoArquivo>("GetVersaoArquivo"),
    Operacao<OryUtils::CompareVersion>("CompareVersion"),
    Operacao<OryUtils::IsAExe>("IsAExe"),
    Operacao<OryUtils::IsABpl>("IsABpl"),
    Operacao<OryUtils::isADll>("isADll"),
    Operacao<OryUtils::isADAT>("isADAT"),
    Operacao<OryUtils::isAINI>("isAINI"),
    Operacao<OryUtils::isAHTML>("isAHTML"),
});
// clang-format on
static_assert(NomesSaoUnicos(COperacoes));

}  // namespace

std::span<const TOperacao> BuscarOperacoesDeArquivos() noexcept { return COperacoes; }

}  // namespace Ory
