#include "oryutils/platform/DadosDoArquivo.hpp"

#include "oryutils/platform/windows/CaminhoDoSistema.hpp"
#include "oryutils/platform/windows/InstanteUtc.hpp"

namespace OryUtils::Interno {
namespace {

DWORD BuscarAtributos(std::u16string_view AArquivo) {
    if (AArquivo.find(u'\0') != AArquivo.npos) return INVALID_FILE_ATTRIBUTES;
    return ::GetFileAttributesW(CaminhoDoSistema(AArquivo).c_str());
}

}  // namespace

std::optional<TDadosDoArquivo> ProcurarArquivo(std::u16string_view AArquivo) {
    if (AArquivo.find(u'\0') != AArquivo.npos) return {};
    WIN32_FIND_DATAW dados{};
    const HANDLE busca = ::FindFirstFileW(CaminhoDoSistema(AArquivo).c_str(), &dados);
    if (busca == INVALID_HANDLE_VALUE) return {};
    ::FindClose(busca);
    const bool pasta = (dados.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return TDadosDoArquivo{
        .Nome = DeWide(dados.cFileName),
        .Tamanho = pasta ? 0 : std::uint64_t{dados.nFileSizeHigh} << 32 | dados.nFileSizeLow,
        .UltimaGravacao = DeFileTime(dados.ftLastWriteTime),
        .EhPasta = pasta,
    };
}

bool ExisteArquivo(std::u16string_view AArquivo) {
    const DWORD atributos = BuscarAtributos(AArquivo);
    return atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool AlterarUltimaGravacao(std::u16string_view AArquivo, TInstanteUtc AInstante) {
    if (AInstante < -CMilissegundosDe1601A1970 || AArquivo.find(u'\0') != AArquivo.npos) return false;
    const HANDLE arquivo = ::CreateFileW(CaminhoDoSistema(AArquivo).c_str(), FILE_WRITE_ATTRIBUTES,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                         FILE_ATTRIBUTE_NORMAL, nullptr);
    if (arquivo == INVALID_HANDLE_VALUE) return false;
    const FILETIME tempo = ParaFileTime(AInstante);
    const bool foi = ::SetFileTime(arquivo, nullptr, nullptr, &tempo) != 0;
    ::CloseHandle(arquivo);
    return foi;
}

}  // namespace OryUtils::Interno
