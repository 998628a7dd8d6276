#include "oryutils/files/OryUtilsFiles.hpp"

#include "oryutils/files/interno/DataDoArquivo.hpp"
#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/platform/ProgramaPadrao.hpp"
#include "oryutils/runtime/FormatoNumero.hpp"
#include "oryutils/runtime/NomeDeArquivo.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"

#include <array>

namespace OryUtils {
namespace {

constexpr Extended CPorUnidade = 1024;
constexpr std::array<std::u16string_view, 3> CUnidades{u" KB", u" MB", u" GB"};
// From here on a size is written as 1 of the next unit: 1023.995 rounds to 1024.00.
constexpr Extended CLimiteDaUnidade = CPorUnidade - 0.005L;

}  // namespace

TInstanciaGlobal<TOryUtilsFiles> GOryUtilsFiles;

bool TOryUtilsFiles::AbrirArquivo(std::u16string_view AArquivo, std::u16string_view AParametros) {
    return Interno::AbrirComProgramaPadrao(AArquivo, AParametros);
}

bool TOryUtilsFiles::AlterouDataHoraArquivo(std::u16string_view AArquivo, TDateTime ADataHora) {
    const auto instante = Interno::BuscarInstanteUtc(ADataHora);
    return instante && Interno::AlterarUltimaGravacao(AArquivo, *instante);
}

bool TOryUtilsFiles::ExisteDiretorio(std::u16string_view ADiretorio) { return Interno::ExistePasta(ADiretorio); }

std::u16string TOryUtilsFiles::ExtrairNomeDoArquivoSemExtensao(std::u16string_view AArquivo) {
    std::u16string_view nome = ExtrairNomeDoArquivo(AArquivo);
    nome.remove_suffix(ExtrairExtensaoDoArquivo(AArquivo).size());
    return std::u16string(nome);
}

std::u16string TOryUtilsFiles::FormatarTamanhoArquivo(std::int64_t ATamanho) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return FormatarTamanhoArquivo(ATamanho); });
    Extended valor = static_cast<Extended>(ATamanho);
    const Extended sinal = valor < 0 ? -1 : 1;
    valor *= sinal;
    if (valor < CPorUnidade) return FormatarNumero(u",0", sinal * valor) + (valor == 1 ? u" byte" : u" bytes");
    std::size_t unidade = 0;
    for (valor /= CPorUnidade; valor >= CLimiteDaUnidade && unidade + 1 < CUnidades.size(); valor /= CPorUnidade)
        ++unidade;
    return FormatarNumero(u",0.##", sinal * valor).append(CUnidades[unidade]);
}

}  // namespace OryUtils
