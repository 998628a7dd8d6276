#include "oryutils/platform/Discos.hpp"

#include "oryutils/characters/Hexadecimal.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/linux/Descritor.hpp"
#include "oryutils/readers/TabelaDeMontagens.hpp"

#include <algorithm>
#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <memory>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace OryUtils::Interno {
namespace {

constexpr int CNumeroDaRaiz = 3;  // "C"
constexpr const char* CPastaDeRotulos = "/dev/disk/by-label/";

bool EhPasta(const std::string& ANome) {
    struct stat dados {};
    return ::stat(ANome.c_str(), &dados) == 0 && S_ISDIR(dados.st_mode);
}

std::vector<TMontagem> ListarMontagens() {
    std::vector<TMontagem> lista = LerTabelaDeMontagens(LerArquivo(u"/proc/self/mountinfo").value_or(""));
    std::erase_if(lista, [](const TMontagem& AMontagem) { return !EhPasta(AMontagem.Pasta); });
    return lista;
}

// The mount that holds a path: the one of the same device.
std::optional<TMontagem> BuscarMontagemDe(const std::string& APasta) {
    struct stat procurada {};
    if (::stat(APasta.c_str(), &procurada) != 0) return std::nullopt;
    for (TMontagem& montagem : ListarMontagens()) {
        struct stat dados {};
        if (::stat(montagem.Pasta.c_str(), &dados) == 0 && dados.st_dev == procurada.st_dev)
            return TMontagem{APasta, std::move(montagem.Origem)};
    }
    return TMontagem{APasta, {}};
}

std::optional<TMontagem> LocalizarUnidade(std::u16string_view AUnidade) {
    if (AUnidade.find(u'\0') != AUnidade.npos) return std::nullopt;
    if (AUnidade.starts_with(u'/')) return BuscarMontagemDe(ParaUtf8(AUnidade));
    const int numero = BuscarNumeroDaUnidade(AUnidade);
    if (numero < CNumeroDaRaiz) return std::nullopt;
    std::vector<TMontagem> montagens = ListarMontagens();
    const auto indice = static_cast<std::size_t>(numero - CNumeroDaRaiz);
    if (indice >= montagens.size()) return std::nullopt;
    return std::move(montagens[indice]);
}

// The names of the links write what a file name should not have as "\x20".
std::string DecodificarRotulo(std::string_view ATexto) {
    std::string texto;
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        const bool codigo = ATexto.substr(i).starts_with("\\x") && i + 3 < ATexto.size() &&
                            ValorHexadecimal(ATexto[i + 2]) >= 0 && ValorHexadecimal(ATexto[i + 3]) >= 0;
        texto += codigo ? static_cast<char>(ValorHexadecimal(ATexto[i + 2]) * 16 + ValorHexadecimal(ATexto[i + 3]))
                        : ATexto[i];
        if (codigo) i += 3;
    }
    return texto;
}

std::string PerguntarRotulo(const std::string& APasta) {
    std::array<char, FSLABEL_MAX + 1> rotulo{};
    const TDescritor pasta(::open(APasta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return ::ioctl(pasta.Get(), FS_IOC_GETFSLABEL, rotulo.data()) == 0 ? rotulo.data() : "";
}

std::string ProcurarRotulo(const std::string& ADispositivo) {
    struct stat dispositivo {};
    if (::stat(ADispositivo.c_str(), &dispositivo) != 0 || !S_ISBLK(dispositivo.st_mode)) return {};
    const std::unique_ptr<DIR, int (*)(DIR*)> pasta(::opendir(CPastaDeRotulos), ::closedir);
    if (!pasta) return {};
    while (const dirent* entrada = ::readdir(pasta.get())) {
        struct stat dados {};
        const std::string caminho = std::string(CPastaDeRotulos) + entrada->d_name;
        if (::stat(caminho.c_str(), &dados) == 0 && S_ISBLK(dados.st_mode) && dados.st_rdev == dispositivo.st_rdev)
            return DecodificarRotulo(entrada->d_name);
    }
    return {};
}

}  // namespace

std::optional<TEspacoEmDisco> BuscarEspacoEmDisco(std::u16string_view AUnidade) {
    const auto montagem = LocalizarUnidade(AUnidade);
    struct statvfs dados {};
    if (!montagem || ::statvfs(montagem->Pasta.c_str(), &dados) != 0) return std::nullopt;
    return TEspacoEmDisco{std::uint64_t{dados.f_bavail} * dados.f_frsize,
                          std::uint64_t{dados.f_blocks} * dados.f_frsize};
}

std::u16string BuscarNomeDoVolume(std::u16string_view AUnidade) {
    const auto montagem = LocalizarUnidade(AUnidade);
    if (!montagem) return {};
    const std::string rotulo = PerguntarRotulo(montagem->Pasta);
    return DeUtf8(rotulo.empty() ? ProcurarRotulo(montagem->Origem) : rotulo);
}

std::vector<std::u16string> ListarUnidades() {
    std::vector<std::u16string> lista;
    for (const TMontagem& montagem : ListarMontagens()) lista.push_back(DeUtf8(montagem.Pasta));
    return lista;
}

}  // namespace OryUtils::Interno
