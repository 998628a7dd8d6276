// The store's files: writers that are killed, writers at once, who may read, where they live, what damage does.
#include "oryutils/characters/Unidades.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/system/OryUtilsRegistry.hpp"

#include "comum/Acaso.hpp"
#include "files/ApoioArquivos.hpp"
#include "resistencia/Quantidade.hpp"
#include "system/Ambiente.hpp"
#include "system/RegistroDeTeste.hpp"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace OryUtils;
using Teste::CChave;
using ::Testes::TVariavel;

namespace {

/// The digits of ANumero repeated up to ATamanho.
std::u16string TextoDe(long ANumero, std::size_t ATamanho) {
    std::u16string texto;
    while (texto.size() < ATamanho) texto += InteiroParaTexto(ANumero) + u' ';
    return texto;
}

/// A process that writes settings until it has written AQuantos from APrimeiro on or is killed. Setting i is APrefixo +
/// (i modulo ANomes), its text TextoDe(i).
class TGravador {
public:
    TGravador(char16_t APrefixo, long APrimeiro, long AQuantos, long ANomes, std::size_t ATamanho) {
        std::array<int, 2> cano{};
        EXPECT_EQ(::pipe2(cano.data(), O_CLOEXEC), 0);
        FProcesso = ::fork();
        if (FProcesso == 0) {
            TOryUtilsRegistro registro;
            for (long i = APrimeiro; i < APrimeiro + AQuantos; ++i) {
                const std::u16string nome = APrefixo + InteiroParaTexto(i % ANomes);
                if (!registro.AdicionouValor(crLocalMachine, CChave, TextoDe(i, ATamanho), nome).Status) break;
                if (::write(cano[1], &i, sizeof i) != sizeof i) break;
            }
            ::_exit(0);
        }
        ::close(cano[1]);
        FConfirmados = cano[0];
    }
    ~TGravador() {
        ::close(FConfirmados);
        ::waitpid(FProcesso, nullptr, 0);
    }
    TGravador(const TGravador&) = delete;
    TGravador& operator=(const TGravador&) = delete;

    /// The next number that it says to have written; none at the end.
    std::optional<long> LerNumero() {
        long numero = 0;
        if (::read(FConfirmados, &numero, sizeof numero) == sizeof numero) return numero;
        return {};
    }
    void Matar() { ::kill(FProcesso, SIGKILL); }

private:
    int FConfirmados = -1;
    pid_t FProcesso = 0;
};

class TArmazem : public Teste::TRegistro {
protected:
    std::string BuscarArquivo() const { return Isolado.Pasta + "/HKEY_LOCAL_MACHINE.reg"; }
    std::string LerArquivo() const { return LerBytes(BuscarArquivo()); }
    void EscreverArquivo(const std::string& ABytes) const { GravarBytes(BuscarArquivo(), ABytes); }
};

TEST_F(TArmazem, GravadoresMortosNaoEstragamNada) {
    constexpr long CNomes = 8;
    constexpr std::size_t CTamanho = 3000;
    ::Testes::TAcaso sorteio;
    // A value of a kind that nobody knows, besides those that are written.
    EscreverArquivo(LerArquivo() + Interno::BytesDeUnidades(u"[HKEY_LOCAL_MACHINE\\" + std::u16string(CChave) +
                                                            u"]\r\n\"outro\"=hex(abcd):01\r\n"));

    long escrito = -1;
    std::vector<std::u16string> esperados(CNomes);
    int mortosNoMeio = 0;
    for (int rodada = 0; rodada < OryUtils::Testes::Quantidade(200, 1000); ++rodada) {
        TGravador gravador(u'v', escrito + 1, 1'000'000, CNomes, CTamanho);
        const auto confirmar = [&](std::optional<long> ANumero) {
            if (ANumero) escrito = *ANumero;
            if (ANumero) esperados[static_cast<std::size_t>(escrito % CNomes)] = TextoDe(escrito, CTamanho);
            return ANumero.has_value();
        };
        for (auto i = sorteio() % 3 + 1; i > 0; --i) ASSERT_TRUE(confirmar(gravador.LerNumero()));
        // Any moment, and in every other round one at which the new file stands beside the old one.
        if (rodada % 2 == 0)
            for (volatile auto espera = sorteio() % 400'000; espera > 0;) espera = espera - 1;
        else
            for (int vezes = 0; vezes < 100'000 && !std::filesystem::exists(BuscarArquivo() + ".novo"); ++vezes)
                std::this_thread::yield();  // the writer may need this processor
        gravador.Matar();
        while (confirmar(gravador.LerNumero())) {
        }
        mortosNoMeio += std::filesystem::exists(BuscarArquivo() + ".novo");

        TRegistry leitor(arLeitura);
        leitor.SetRootKey(crLocalMachine);
        ASSERT_TRUE(leitor.OpenKey(CChave, false));
        std::vector<std::u16string> textos;
        for (long nome = 0; nome < CNomes; ++nome) textos.push_back(leitor.ReadString(u"v" + InteiroParaTexto(nome)));
        // Killed between the write and its confirmation: all of the new text, or all of the old.
        const auto proximo = static_cast<std::size_t>((escrito + 1) % CNomes);
        if (textos[proximo] == TextoDe(escrito + 1, CTamanho)) esperados[proximo] = textos[proximo];
        ASSERT_EQ(textos, esperados) << "round " << rodada;
    }
    EXPECT_GT(mortosNoMeio, 0) << "some must have been writing when they were killed";
    EXPECT_EQ(Teste::LerDoSistema(CChave, u"outro"), u"hex(abcd):01");
}

TEST_F(TArmazem, OitoGravadoresAoMesmoTempoNaoPerdemNada) {
    constexpr long CQuantos = 50;
    {
        std::vector<std::unique_ptr<TGravador>> gravadores;
        for (char16_t c = u'a'; c < u'i'; ++c)
            gravadores.push_back(std::make_unique<TGravador>(c, 0, CQuantos, CQuantos, 40));
        for (const auto& gravador : gravadores)
            while (gravador->LerNumero()) {
            }
    }
    ASSERT_TRUE(Acessor.OpenKey(CChave, false));
    for (char16_t c = u'a'; c < u'i'; ++c)
        for (long i = 0; i < CQuantos; ++i)
            ASSERT_EQ(Acessor.ReadString(std::u16string(1, c) + InteiroParaTexto(i)), TextoDe(i, 40));
    EXPECT_EQ(Acessor.GetValueNames().size(), 8u * CQuantos);
}

mode_t BuscarModo(const std::string& AArquivo) {
    struct stat dados {};
    return ::stat(AArquivo.c_str(), &dados) == 0 ? dados.st_mode & 07777 : 0;
}

TEST_F(TArmazem, CadaRaizTemSeuArquivoESuasPermissoes) {
    namespace fs = std::filesystem;
    const std::string pasta = Isolado.Pasta + "/a/b";
    for (const mode_t mascara : {mode_t{0}, mode_t{077}}) {
        fs::remove_all(Isolado.Pasta + "/a");
        const TVariavel armazem("ORYUTILS_REGISTRO", pasta);
        const mode_t anterior = ::umask(mascara);
        Registro.AdicionarValor(crLocalMachine, u"Software", 1, u"x");
        Registro.AdicionarValor(crCurrentUser, u"Software", 1, u"x");
        ::umask(anterior);
        EXPECT_EQ(BuscarModo(pasta), 0755u);
        EXPECT_EQ(BuscarModo(pasta + "/HKEY_LOCAL_MACHINE.reg"), 0644u);
        EXPECT_EQ(BuscarModo(pasta + "/HKEY_CURRENT_USER.reg"), 0600u);
        EXPECT_EQ(BuscarModo(pasta + "/HKEY_LOCAL_MACHINE.reg.trava"), 0600u);
    }
    // The user's folder, as the variables tell it; a relative one counts as none.
    const std::string casa = Isolado.Pasta + "/casa";
    fs::create_directory(casa);
    const TVariavel nenhum("ORYUTILS_REGISTRO", ""), inicio("HOME", casa);
    for (const auto& [variavel, esperada] : {std::pair{casa + "/xdg", casa + "/xdg/oryutils"},
                                             std::pair{std::string("rel"), casa + "/.config/oryutils"}}) {
        const TVariavel configuracoes("XDG_CONFIG_HOME", variavel);
        Registro.AdicionarValor(crCurrentUser, u"Software", 1, u"x");
        EXPECT_EQ(BuscarModo(esperada), 0700u);
        EXPECT_EQ(BuscarModo(esperada + "/HKEY_CURRENT_USER.reg"), 0600u);
    }
}

TEST_F(TArmazem, QuemNaoPodeGravarSoLe) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs another user to act as";
    ASSERT_EQ(::chmod(Isolado.Pasta.c_str(), 0755), 0);
    ASSERT_EQ(::seteuid(65534), 0);
    TRegistry leitor(arLeitura);
    leitor.SetRootKey(crLocalMachine);
    const bool le = leitor.OpenKey(CChave, false);
    TRegistry completo;
    completo.SetRootKey(crLocalMachine);
    const bool abre = completo.OpenKey(CChave, false);
    const auto motivo = completo.GetUltimoErro();
    const auto resultado = Registro.AdicionouValor(crLocalMachine, CChave, 1, u"x");
    const auto tempo = Registro.AtualizouTimeoutInicializacaoServico(1);
    const auto motivoDoTempo = Registro.BuscarMotivoDaFalha();
    ASSERT_EQ(::seteuid(0), 0);
    EXPECT_TRUE(le);
    EXPECT_FALSE(abre) << "all rights are not to be had, as on Windows";
    EXPECT_EQ(motivo, Interno::erAcessoNegado);
    EXPECT_TRUE(resultado.Mensagem.ends_with(u"Falha ao definir dados para 'x': Acesso negado"));
    EXPECT_EQ(motivoDoTempo, u"Acesso negado");
    EXPECT_EQ(tempo.Mensagem,
              u"Não foi possível atualizar a configuração de timeout de inicialização de serviços ServicesPipeTimeout" +
                  std::u16string(Teste::CConselho));
}

TEST_F(TArmazem, ArquivoEstragadoFicaComoEsta) {
    for (const std::string& bytes : {std::string("lixo"), LerArquivo() + "x", std::string(1000, '\0')}) {
        EscreverArquivo(bytes);
        TRegistry acessor;
        acessor.SetRootKey(crLocalMachine);
        EXPECT_FALSE(acessor.OpenKey(CChave, true));
        EXPECT_EQ(acessor.GetUltimoErro(), Interno::erCorrompido);
        EXPECT_TRUE(Registro.AdicionouValor(crLocalMachine, CChave, 1, u"x")
                        .Mensagem.ends_with(u": " + Interno::BuscarTextoDoErroRegistro(Interno::erCorrompido)));
        EXPECT_FALSE(Registro.ExcluiuChave(crLocalMachine, u"Software", u"OryUtilsTeste").Status);
        EXPECT_EQ(Registro.GetValorRegistro(crLocalMachine, CChave, u"x"), u"");
        EXPECT_EQ(LerArquivo(), bytes);
    }
    const std::string quaseBom =
        "\xFF\xFE" + Interno::BytesDeUnidades(u"Windows Registry Editor Version 5.00\r\n\r\n[HKEY_LOCAL_MACHINE\\" +
                                              std::u16string(CChave) + u"]\r\n\"x\"=\"lido\"\r\n\"y\"=\"cortado");
    EscreverArquivo(quaseBom);
    EXPECT_EQ(Registro.GetValorRegistro(crLocalMachine, CChave, u"x"), u"lido") << "what is understood is read";
    EXPECT_FALSE(Registro.AdicionouValor(crLocalMachine, CChave, 1, u"x").Status) << "writing would lose a line";
    EXPECT_EQ(LerArquivo(), quaseBom);
    std::filesystem::resize_file(BuscarArquivo(), (64u << 20) + 2);
    EXPECT_FALSE(Acessor.OpenKey(CChave, false));
    EXPECT_EQ(Acessor.GetUltimoErro(), Interno::erArquivoGrande);
    std::filesystem::resize_file(BuscarArquivo(), 0);
    EXPECT_TRUE(Acessor.OpenKey(u"Software\\Microsoft\\Windows\\CurrentVersion\\Run", false)) << "empty: born again";
}

TEST_F(TArmazem, ArmazemNasceComAsChavesDeTodoWindows) {
    std::filesystem::remove(BuscarArquivo());
    TRegistry leitor(arLeitura);
    leitor.SetRootKey(crLocalMachine);
    for (const char16_t* chave : {u"Software\\Microsoft\\Windows\\CurrentVersion\\Run",
                                  u"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment",
                                  u"Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows"})
        EXPECT_TRUE(leitor.KeyExists(chave));
    ASSERT_TRUE(leitor.OpenKey(u"\\Software\\Microsoft\\Windows\\CurrentVersion", false));
    EXPECT_EQ(leitor.ReadString(u"ProgramFilesDir"), u"/opt");
    EXPECT_FALSE(std::filesystem::exists(BuscarArquivo())) << "reading writes nothing";
    EXPECT_THROW(leitor.WriteInteger(u"x", 1), ERegistryException) << "opened for reading";

    TRegistry acessor;
    acessor.SetRootKey(crClassesRoot);
    acessor.CreateKey(u".ory");
    acessor.SetRootKey(crLocalMachine);
    EXPECT_TRUE(acessor.KeyExists(u"Software\\Classes\\.ory"));
    acessor.SetRootKey(crUsers);
    ASSERT_TRUE(acessor.OpenKey(u".DEFAULT", false)) << "who has no settings yet";
    acessor.WriteInteger(u"x", 7);
    EXPECT_EQ(acessor.ReadInteger(u"x"), 7);
    EXPECT_TRUE(std::filesystem::exists(Isolado.Pasta + "/HKEY_USERS.reg"));
}

TEST_F(TArmazem, ChaveExcluidaPorOutroNaoVolta) {
    ASSERT_TRUE(Acessor.OpenKey(CChave, false));
    Registro.ExcluiuChave(crLocalMachine, u"Software", u"OryUtilsTeste");
    EXPECT_THROW(Acessor.WriteInteger(u"x", 1), ERegistryException);
    EXPECT_EQ(Acessor.GetUltimoErro(), Interno::erChaveExcluida);
    EXPECT_FALSE(Acessor.ValueExists(u"x"));
}

}  // namespace
