#include "oryutils/platform/DadosDoArquivo.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/linux/InstanteUtc.hpp"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

namespace OryUtils::Interno {
namespace {

bool BuscarDados(std::u16string_view AArquivo, struct stat& ADados) {
    return AArquivo.find(u'\0') == AArquivo.npos && ::stat(ParaUtf8(AArquivo).c_str(), &ADados) == 0;
}

}  // namespace

std::optional<TDadosDoArquivo> ProcurarArquivo(std::u16string_view AArquivo) {
    struct stat dados {};
    if (AArquivo.ends_with(u'/') || !BuscarDados(AArquivo, dados)) return {};
    const bool pasta = S_ISDIR(dados.st_mode);
    return TDadosDoArquivo{
        .Nome = std::u16string(AArquivo.substr(AArquivo.rfind(u'/') + 1)),
        .Tamanho = pasta ? 0 : static_cast<std::uint64_t>(dados.st_size),
        .UltimaGravacao = DeTimespec(dados.st_mtim),
        .EhPasta = pasta,
    };
}

bool ExisteArquivo(std::u16string_view AArquivo) {
    struct stat dados {};
    return BuscarDados(AArquivo, dados) && !S_ISDIR(dados.st_mode);
}

bool AlterarUltimaGravacao(std::u16string_view AArquivo, TInstanteUtc AInstante) {
    struct stat dados {};
    if (!BuscarDados(AArquivo, dados) || S_ISDIR(dados.st_mode)) return false;
    const TInstanteUtc milissegundos = (AInstante % 1000 + 1000) % 1000;
    const time_t segundos = (AInstante - milissegundos) / 1000;
    const timespec tempos[] = {{.tv_sec = 0, .tv_nsec = UTIME_OMIT},
                               {.tv_sec = segundos, .tv_nsec = milissegundos * 1'000'000}};
    if (::utimensat(AT_FDCWD, ParaUtf8(AArquivo).c_str(), tempos, 0) != 0) return false;
    // What a file system cannot keep becomes the nearest instant that it can. The coarsest one counts by two seconds.
    constexpr time_t CMaiorResolucao = 2;
    return BuscarDados(AArquivo, dados) &&
           std::max(dados.st_mtim.tv_sec, segundos) - std::min(dados.st_mtim.tv_sec, segundos) <= CMaiorResolucao;
}

}  // namespace OryUtils::Interno
