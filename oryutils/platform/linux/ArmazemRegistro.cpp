#include "oryutils/platform/linux/ArmazemRegistro.hpp"

#include "oryutils/characters/Unidades.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/PastasDoSistema.hpp"
#include "oryutils/platform/VariavelDeAmbiente.hpp"
#include "oryutils/platform/linux/Descritor.hpp"
#include "oryutils/platform/linux/PastaInicial.hpp"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace OryUtils::Interno {
namespace {

constexpr const char* CVariavelDaPasta = "ORYUTILS_REGISTRO";
constexpr const char* CPastaDoSistema = "/etc/oryutils";
constexpr std::string_view CPastaDoUsuario = "/oryutils";
constexpr mode_t CModoDaTrava = 0600;  // who can open it could keep every writer waiting
constexpr std::size_t CMaiorArquivo = 64u << 20;

// The keys that every Windows has and that settings are written below.
constexpr std::array CChavesDaMaquina{
    u"HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Run",
    u"HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows",
    u"HKEY_LOCAL_MACHINE\\Software\\Classes",
    u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment",
    u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Hardware Profiles\\Current",
};
constexpr std::array CChavesDoUsuario{
    u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run",
    u"HKEY_CURRENT_USER\\Environment",
};
constexpr std::u16string_view CChaveDosProgramas = u"HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion";

TErroRegistro DeErrno(int AErro, TErroRegistro ADemais) {
    if (AErro == EACCES || AErro == EPERM || AErro == EROFS) return erAcessoNegado;
    if (AErro == ENOSPC || AErro == EDQUOT) return erDiscoCheio;
    return AErro == EFBIG ? erArquivoGrande : ADemais;
}

std::string BuscarPastaDoUsuario() {
    const std::string pasta = BuscarPastaDeConfiguracoes();
    return pasta.empty() ? pasta : pasta + std::string(CPastaDoUsuario);
}

std::string BuscarPastaAcima(const std::string& APasta) {
    const std::string acima = std::filesystem::path(APasta).parent_path();
    return acima.empty() ? "." : acima;
}

// What root makes in a user's folder (sudo with the user's HOME) belongs to that user, or would lock the user out.
bool HerdarDono(int ANovo, const std::string& APasta) {
    struct stat dados {};
    if (::geteuid() != 0 || ::stat(APasta.c_str(), &dados) != 0 || dados.st_uid == 0) return true;
    return ::fchown(ANovo, dados.st_uid, dados.st_gid) == 0;
}

// A file that was not there, whatever the process's mask of modes.
int CriarArquivoNovo(const std::string& ANome, mode_t AModo) {
    return ::open(ANome.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, AModo);
}

bool CriarPastaComModo(const std::string& APasta, mode_t AModo) {
    int feita = ::mkdir(APasta.c_str(), AModo);
    const std::string acima = BuscarPastaAcima(APasta);
    if (feita != 0 && errno == ENOENT && CriarPastaComModo(acima, AModo)) feita = ::mkdir(APasta.c_str(), AModo);
    if (feita != 0) return errno == EEXIST;
    const TDescritor pasta(::open(APasta.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    return !pasta.Falhou() && ::fchmod(pasta.Get(), AModo) == 0 && HerdarDono(pasta.Get(), acima);
}

void CriarArmazemNovo(TChaveReg& ATopo, std::string_view ARaiz) {
    if (ARaiz == "HKEY_CURRENT_USER") {
        for (const char16_t* chave : CChavesDoUsuario) ATopo.Criar(chave);
        return;
    }
    if (ARaiz == "HKEY_USERS") {
        ATopo.Criar(u"HKEY_USERS\\.DEFAULT");
        return;
    }
    for (const char16_t* chave : CChavesDaMaquina) ATopo.Criar(chave);
    ATopo.Criar(CChaveDosProgramas).Valores[u"ProgramFilesDir"] = {
        tdrTexto, BytesDeUnidades(BuscarPastaDeProgramasPadrao() + u'\0')};
}

// The whole file, at most CMaiorArquivo.
TErroRegistro LerBytes(const TFluxo& AEntrada, std::string& ABytes) {
    const auto tamanho = AEntrada.BuscarTamanho();
    if (!tamanho) return erCorrompido;
    if (*tamanho > CMaiorArquivo) return erArquivoGrande;
    ABytes.resize(static_cast<std::size_t>(*tamanho));
    return AEntrada.LerEm(0, ABytes) == ABytes.size() ? erNenhum : erFalhaDeLeitura;
}

// The new text goes to a file beside the old one and takes its name when it is whole and on the disk. Only the holder
// of the lock comes here: what stands there already is what a killed writer left behind.
TErroRegistro Substituir(const TLocalDoArmazem& ALocal, std::string_view ABytes) {
    const std::string arquivo = ALocal.BuscarArquivo();
    const std::string novo = arquivo + ".novo";
    const auto falhou = [&] {
        const TErroRegistro erro = DeErrno(errno, erFalhaDeGravacao);
        ExcluirArquivo(novo);
        return erro;
    };
    ExcluirArquivo(novo);
    const int alca = CriarArquivoNovo(novo, ALocal.ModoDoArquivo);
    TFluxo saida;
    if (saida.Assumir(alca) != efNenhum || ::fchmod(alca, ALocal.ModoDoArquivo) != 0 ||
        !HerdarDono(alca, ALocal.Pasta) || saida.Escrever(ABytes) != efNenhum || ::fsync(alca) != 0 ||
        saida.Fechar() != efNenhum || SubstituirArquivo(novo, arquivo) != efNenhum)
        return falhou();
    const TDescritor pasta(::open(ALocal.Pasta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!pasta.Falhou()) ::fsync(pasta.Get());
    return erNenhum;
}

int AbrirTrava(const TLocalDoArmazem& ALocal) {
    const std::string nome = ALocal.BuscarArquivo() + ".trava";
    const int alca = ::open(nome.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
    if (alca >= 0 || errno != ENOENT) return alca;
    if (const TDescritor nova(CriarArquivoNovo(nome, CModoDaTrava)); !nova.Falhou())
        HerdarDono(nova.Get(), ALocal.Pasta);
    return ::open(nome.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
}

bool Travar(const TDescritor& ATrava) {
    while (::flock(ATrava.Get(), LOCK_EX) != 0)
        if (errno != EINTR) return false;
    return true;
}

}  // namespace

TLocalDoArmazem BuscarLocalDoArmazem(TChaveRaiz ARaiz) {
    const bool doUsuario = ARaiz == crCurrentUser;
    TLocalDoArmazem local;
    local.Raiz = doUsuario ? "HKEY_CURRENT_USER" : ARaiz == crUsers ? "HKEY_USERS" : "HKEY_LOCAL_MACHINE";
    local.ModoDaPasta = doUsuario ? 0700 : 0755;
    local.ModoDoArquivo = doUsuario ? 0600 : 0644;
    local.Pasta = BuscarVariavelDeAmbiente(CVariavelDaPasta);
    if (local.Pasta.empty()) local.Pasta = doUsuario ? BuscarPastaDoUsuario() : CPastaDoSistema;
    return local;
}

bool PodeGravarNoArmazem(const TLocalDoArmazem& ALocal) {
    std::string pasta = ALocal.Pasta;
    while (::faccessat(AT_FDCWD, pasta.c_str(), W_OK | X_OK, AT_EACCESS) != 0) {
        if (errno != ENOENT || pasta == "/" || pasta == ".") return false;
        pasta = BuscarPastaAcima(pasta);
    }
    return true;
}

TErroRegistro LerArmazem(const TLocalDoArmazem& ALocal, TArquivoReg& AArquivo) {
    if (ALocal.Pasta.empty()) return erAcessoNegado;
    TFluxo entrada;
    std::string bytes;
    // Without O_NONBLOCK a pipe that has no writer would keep the opener waiting.
    if (entrada.Assumir(::open(ALocal.BuscarArquivo().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) == efNenhum) {
        if (const TErroRegistro erro = LerBytes(entrada, bytes); erro != erNenhum) return erro;
    } else if (errno != ENOENT) {
        return DeErrno(errno, erFalhaDeLeitura);
    }
    AArquivo = {};
    if (bytes.empty()) {
        CriarArmazemNovo(AArquivo.Topo, ALocal.Raiz);
    } else {
        auto lido = LerArquivoReg(bytes);
        if (!lido) return erCorrompido;
        AArquivo = *std::move(lido);
    }
    AArquivo.Topo.Criar(DeUtf8(ALocal.Raiz));
    return erNenhum;
}

TErroRegistro AlterarArmazem(const TLocalDoArmazem& ALocal, const std::function<TErroRegistro(TChaveReg&)>& AEdicao) {
    if (ALocal.Pasta.empty()) return erAcessoNegado;
    if (!CriarPastaComModo(ALocal.Pasta, ALocal.ModoDaPasta)) return DeErrno(errno, erFalhaDeGravacao);
    // The lock is a file of its own: the store's name leads to another file after each edit.
    const TDescritor trava(AbrirTrava(ALocal));
    if (trava.Falhou() || !Travar(trava)) return DeErrno(errno, erFalhaDeGravacao);
    TArquivoReg arquivo;
    if (const TErroRegistro erro = LerArmazem(ALocal, arquivo); erro != erNenhum) return erro;
    if (arquivo.PerdeuLinhas) return erCorrompido;
    if (const TErroRegistro erro = AEdicao(arquivo.Topo); erro != erNenhum) return erro;
    const std::string bytes = EscreverArquivoReg(arquivo.Topo);
    return bytes.size() > CMaiorArquivo ? erArquivoGrande : Substituir(ALocal, bytes);
}

}  // namespace OryUtils::Interno
