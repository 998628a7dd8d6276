// The settings of the registry: what is written is read back without the library (LerDoSistema).
#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/system/interno/CotaObjetosGDI.hpp"

#include "comum/MensagemDe.hpp"
#include "system/RegistroDeTeste.hpp"

using namespace OryUtils;
using Teste::CChave;
using Teste::CConselho;
using Teste::LerDoSistema;
using Teste::TRegistro;
using Teste::TValorPreservado;

namespace {

using TLista = std::vector<std::u16string>;

constexpr std::u16string_view CRun = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr std::u16string_view CAmbiente = u"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment";
constexpr std::u16string_view CGDI = u"Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows";
constexpr std::u16string_view CControle = u"SYSTEM\\CurrentControlSet\\Control";
constexpr std::u16string_view CVariavel = u"ORYUTILS_TESTE_LISTA";

void Falhou(const TResultStatus& AResultado, const std::u16string& AMensagem, const char* APorque) {
    EXPECT_EQ(AResultado, (TResultStatus{false, AMensagem})) << APorque;
}

std::u16string MotivoDe(Interno::TErroRegistro AErro) { return u": " + Interno::BuscarTextoDoErroRegistro(AErro); }

std::string MensagemDe(const auto& AAcao) { return Testes::MensagemDe<ERegistryException>(AAcao); }

TEST_F(TRegistro, EscreveCadaTipoComoOSistemaOLe) {
    enum TCor { cVerde, cAzul };
    enum class TForma { Redonda };
    const std::tuple<TValorRegistro, std::u16string_view, const char*> casos[] = {
        {8080, u"dword:00001f90", "integer"},
        {-1, u"dword:ffffffff", "negative integer"},
        {std::int64_t{0x1'0000'0002}, u"dword:00000002", "64 bits taken as 32"},
        {std::uint8_t{255}, u"dword:000000ff", "a byte is an integer, not a character"},
        {1.5, u"hex:00,00,00,00,00,00,f8,3f", "double"},
        {-0.25f, u"hex:00,00,00,00,00,00,d0,bf", "float"},
        {1.5L, u"hex:00,00,00,00,00,00,f8,3f", "the extended float as a double"},
        {TMoeda{125'000}, u"hex:00,00,00,00,00,00,29,40", "money is a floating kind: 12.5"},
        {TDateTime(0.5), u"hex:00,00,00,00,00,00,e0,3f", "a date is a floating kind"},
        {u"C:\\Arquivos \"x\"", u"\"C:\\\\Arquivos \\\"x\\\"\"", "text"},
        {std::u16string(), u"\"\"", "empty text"},
        {u"%PATH%;São João \xD83D\xDE00", u"\"%PATH%;São João \xD83D\xDE00\"", "never expandable"},
        {u'ç', u"\"ç\"", "character"},
        {'x', u"\"x\"", "8-bit character"},
        {u8'x', u"\"x\"", "8-bit character of UTF-8"},
        {L'ç', u"\"ç\"", "wide character"},
        {U'ç', u"\"ç\"", "32-bit character"},
        {U'\U0001F600', u"\"\xD83D\xDE00\"", "a character of two units"},
        {char32_t{0x110000}, u"\"\xFFFD\"", "none"},
        {true, u"", "a Boolean is not written"},
        {cAzul, u"", "an enumeration is not written"},
        {TForma::Redonda, u"", "a scoped one neither"},
        {TNulo(), u"", "null"},
        {std::vector<Variant>{1, 2}, u"", "an array"},
    };
    for (const auto& [valor, esperado, porque] : casos) {
        SCOPED_TRACE(porque);
        EXPECT_EQ(Registro.AdicionouValor(crLocalMachine, CChave, valor, u"Valor"), TResultStatus());
        EXPECT_EQ(LerDoSistema(CChave, u"Valor"), esperado);
        EXPECT_EQ(Registro.ExisteValor(crLocalMachine, CChave, u"vALOR"), !esperado.empty());
        EXPECT_EQ(Registro.ExcluiuValor(crLocalMachine, CChave, u"VALOR").Status, !esperado.empty());
    }
}

TEST_F(TRegistro, LeDeVoltaORecusaOutroTipo) {
    for (const int inteiro : {0, 1, -1, INT32_MAX, INT32_MIN}) {
        Registro.AdicionarValor(crLocalMachine, CChave, inteiro, u"i");
        EXPECT_EQ(Registro.GetChave(crLocalMachine, CChave).ReadInteger(u"i"), inteiro);
    }
    for (const double numero : {0.0, -0.1, 1e300}) {
        Registro.AdicionarValor(crLocalMachine, CChave, numero, u"f");
        EXPECT_EQ(Registro.GetChave(crLocalMachine, CChave).ReadFloat(u"f"), numero);
    }
    for (const std::u16string texto : {u"", u"linha 1\r\nlinha 2", u"\t;=[]@\"\\", u"\xD800 só"}) {
        Registro.AdicionarValor(crLocalMachine, CChave, texto, u"s");
        EXPECT_EQ(Registro.GetValorRegistro(crLocalMachine, CChave, u"s"), texto);
    }
    EXPECT_EQ(Registro.GetValorRegistro(crLocalMachine, CChave, u"falta"), u"");
    EXPECT_EQ(Registro.GetValorRegistro(crLocalMachine, u"Nao\\Existe", u"s"), u"");

    TRegistry& acessor = Registro.GetChave(crLocalMachine, CChave);
    EXPECT_EQ(MensagemDe([&] { acessor.ReadString(u"i"); }), "Tipo de dado inválido para 'i'");
    EXPECT_EQ(MensagemDe([&] { acessor.ReadInteger(u"s"); }), "Tipo de dado inválido para 's'");
    EXPECT_EQ(MensagemDe([&] { acessor.ReadFloat(u"i"); }), "Tipo de dado inválido para 'i'");
    const std::string motivo = ParaUtf8(MotivoDe(Interno::erNaoExiste));
    EXPECT_EQ(MensagemDe([&] { acessor.ReadInteger(u"falta"); }), "Falha ao obter dados de 'falta'" + motivo);
    EXPECT_EQ(MensagemDe([&] { Registro.GetValorRegistro(crLocalMachine, CChave, u"i"); }),
              "Tipo de dado inválido para 'i'");
    EXPECT_FALSE(Registro.GetChave(crLocalMachine, u"").GetCurrentPath().size()) << "the root itself opens";
}

TEST_F(TRegistro, FalhasDizemChaveEValor) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const std::pair<TValorRegistro, const char16_t*> casos[] = {{u"um texto", u"um texto"},
                                                                {std::int64_t{1} << 40, u"1099511627776"},
                                                                {1.5, u"1,5"},
                                                                {TDateTime(45000.0), u"15/03/2023"},
                                                                {u'x', u"x"}};
    for (const auto& [valor, texto] : casos)
        Falhou(Registro.AdicionouValor(crLocalMachine, u"Software\\Nao\\Existe", valor, u"Nome"),
               u"Erro ao adicionar valor no registro do Windows.\r\nChave: Software\\Nao\\Existe\r\nValor: " +
                   std::u16string(texto) + u"\r\n\r\nErro ocorrido: \r\n\r\nFalha ao definir dados para 'Nome'" +
                   MotivoDe(Interno::erNaoExiste),
               "a missing key is not created, and Valor is the content");
    EXPECT_EQ(Registro.AdicionouValor(crLocalMachine, u"Software\\Nao\\Existe", true, u"Nome"), TResultStatus());
    EXPECT_FALSE(Registro.ExisteChave(crLocalMachine, u"Software", u"Nao"));

    Falhou(Registro.ExcluiuValor(crLocalMachine, CChave, u"Nome"),
           u"Erro ao excluir valor do registro do Windows.\r\nChave: Software\\OryUtilsTeste\r\nValor: Nome",
           "a missing value");
    const std::u16string motivo = Interno::BuscarTextoDoErroRegistro(Interno::erNaoExiste);
    EXPECT_FALSE(motivo.empty());
    EXPECT_EQ(Registro.BuscarMotivoDaFalha(), motivo) << "what the message has no place for";
    Falhou(Registro.ExcluiuChave(crLocalMachine, CChave, u"Sub"),
           u"Não foi possível excluir a chave/valor << Sub >>.\r\nErro ocorrido: \r\n\r\n" + motivo, "a missing key");
    Falhou(Registro.ExcluiuProgramaInicializacaoWindows(u"OryUtils %s Teste"),
           u"Não foi possível excluir a configuração de auto início da aplicação com o Windows.\r\n\r\nErro ocorrido: "
           u"\r\n\r\nErro ao excluir valor do registro do Windows.\r\nChave: " +
               std::u16string(CRun) + u"\r\nValor: OryUtils %s Teste" + std::u16string(CConselho),
           "a missing entry");
    const std::u16string longo(16384, u'n');
    Falhou(Registro.AdicionouProgramaInicializacaoWindows(longo, u"x.exe"),
           u"Não foi possível configurar aplicação para iniciar automaticamente com o Windows.\r\n\r\nAplicação: " +
               longo + u" \r\n\r\nErro ocorrido: \r\n\r\nFalha ao definir dados para '" + longo + u"'" +
               MotivoDe(Interno::erNomeInvalido) + std::u16string(CConselho),
           "a name that the registry does not take");
}

TEST_F(TRegistro, ChavesNuncaCaemNaRaiz) {
    Registro.CriarChave(crLocalMachine, CChave, u"A\\B");
    EXPECT_TRUE(Registro.ExisteChave(crLocalMachine, CChave, u"a\\b"));
    Registro.AdicionarValor(crLocalMachine, u"\\Software\\OryUtilsTeste\\A\\B\\", 1, u"v");
    EXPECT_EQ(LerDoSistema(u"Software\\OryUtilsTeste\\A\\B", u"v"), u"dword:00000001");

    EXPECT_FALSE(Registro.ExisteChave(crLocalMachine, u"Nao\\Existe", u"Software"));
    Registro.CriarChave(crLocalMachine, u"Nao\\Existe", u"OryUtilsTeste");
    EXPECT_FALSE(Registro.ExisteChave(crLocalMachine, u"", u"OryUtilsTeste"));
    EXPECT_FALSE(Registro.ExcluiuChave(crLocalMachine, u"Nao\\Existe", u"Software").Status);
    EXPECT_TRUE(Registro.ExisteChave(crLocalMachine, u"", u"Software"));
    EXPECT_FALSE(Registro.ExcluiuChave(crLocalMachine, CChave, u"").Status);

    TRegistry& acessor = Registro.GetChave(crLocalMachine, CChave);
    EXPECT_TRUE(acessor.EstahAberta());
    EXPECT_EQ(acessor.GetKeyNames(), TLista{u"A"});
    EXPECT_EQ(acessor.GetAccess(), 0xF013Fu);
    EXPECT_TRUE(Registro.ExisteValor(crLocalMachine, u"Software\\OryUtilsTeste\\A\\B", u"v"))
        << "a key left open is not where the next path starts";
    EXPECT_FALSE(acessor.EstahAberta());

    EXPECT_EQ(Registro.ExcluiuChave(crLocalMachine, CChave, u"A"), TResultStatus()) << "with all below it";
    EXPECT_FALSE(Registro.ExisteChave(crLocalMachine, CChave, u"A"));
    EXPECT_TRUE(Registro.ExisteChave(crLocalMachine, u"Software", u"OryUtilsTeste"));
}

TEST_F(TRegistro, AcessorAbreCaminhosRelativos) {
    TRegistry acessor;
    acessor.SetRootKey(crLocalMachine);
    ASSERT_TRUE(acessor.OpenKey(u"\\Software\\OryUtilsTeste\\X", true));
    ASSERT_TRUE(acessor.OpenKey(u"Y", true));
    EXPECT_EQ(acessor.GetCurrentPath(), u"Software\\OryUtilsTeste\\X\\Y");
    EXPECT_FALSE(acessor.OpenKey(u"Falta", false));
    EXPECT_EQ(acessor.GetUltimoErro(), Interno::erNaoExiste);
    EXPECT_EQ(acessor.GetCurrentPath(), u"Software\\OryUtilsTeste\\X\\Y") << "what does not open changes nothing";
    acessor.WriteInteger(u"", 7);
    EXPECT_EQ(acessor.GetValueNames(), TLista{u""}) << "the default value";
    EXPECT_TRUE(acessor.KeyExists(u"\\Software\\OryUtilsTeste\\X"));
    EXPECT_FALSE(acessor.KeyExists(u"Software"));
    acessor.SetRootKey(crCurrentUser);
    EXPECT_FALSE(acessor.EstahAberta());
    EXPECT_THROW(acessor.WriteInteger(u"x", 1), ERegistryException);
    EXPECT_EQ(acessor.GetUltimoErro(), Interno::erAlcaInvalida);
    EXPECT_THROW(acessor.CreateKey(std::u16string(256, u'k')), ERegistryException);
}

TEST_F(TRegistro, VariaveisDeAmbienteComListas) {
    // Before (null: no such variable), the items, after they are added, after they are taken away.
    const std::tuple<const char16_t*, TLista, std::u16string_view, std::u16string_view> casos[] = {
        {u"A", {u"C:\\x", u"  ", u"C:\\y"}, u"A;C:\\x;C:\\y", u"A"},
        {u"", {u"C:\\x", u"  ", u"C:\\y"}, u";C:\\x;C:\\y", u""},
        {nullptr, {u" C:\\x "}, u"; C:\\x ", u""},
        {u"C:\\x;B;c:\\x", {u"c:\\X "}, u"C:\\x;B;c:\\x;c:\\X ", u"B"},
        {u" a ;b;;A;", {u"A"}, u" a ;b;;A;;A", u"b;"},
        {u"a;;b", {u""}, u"a;;b", u"a;b"},
        {u"ÇÃO;b", {u"ção"}, u"ÇÃO;b;ção", u"b"},
        {u"x", {}, u"x", u"x"},
    };
    TValorPreservado variavel(CAmbiente, CVariavel);
    const auto repor = [&](const char16_t* ATexto) {
        if (ATexto)
            Registro.AdicionarValor(crLocalMachine, CAmbiente, ATexto, CVariavel);
        else
            variavel.Excluir();
    };
    for (const auto& [antes, itens, somada, subtraida] : casos) {
        repor(antes);
        EXPECT_EQ(Registro.AdicionouValorVariavelAmbiente(CVariavel, itens), TResultStatus());
        EXPECT_EQ(Registro.BuscarValorVariavelAmbiente(CVariavel), somada);
        repor(antes);
        EXPECT_EQ(Registro.ExcluiuValorVariavelAmbiente(CVariavel, itens), TResultStatus());
        EXPECT_EQ(Registro.BuscarValorVariavelAmbiente(CVariavel), subtraida);
    }

    variavel.Gravar({Interno::tdrTextoExpansivel, std::string("%\0A\0%\0\0\0", 8)});
    EXPECT_EQ(Registro.AdicionouValorVariavelAmbiente(CVariavel, {u"b"}), TResultStatus());
    EXPECT_EQ(LerDoSistema(CAmbiente, CVariavel), u"\"%A%;b\"") << "what was expandable is so no more";

    variavel.Gravar({Interno::tdrInteiro, std::string("\1\0\0\0", 4)});
    for (const TResultStatus& resultado : {Registro.AdicionouValorVariavelAmbiente(CVariavel, {u"a", u"b"}),
                                           Registro.ExcluiuValorVariavelAmbiente(CVariavel, {u"a", u"b"})})
        Falhou(resultado,
               u"Erro ao adicionar valor no registro do Windows.\r\nChave: " + std::u16string(CAmbiente) +
                   u"\r\nValor: a;b\r\n\r\nErro ocorrido: \r\n\r\nTipo de dado inválido para 'ORYUTILS_TESTE_LISTA'",
               "a variable that is no text stays");
    EXPECT_EQ(LerDoSistema(CAmbiente, CVariavel), u"dword:00000001");
}

TEST_F(TRegistro, InicioAutomatico) {
    const TValorPreservado entrada(CRun, u"OryUtilsTeste");
    EXPECT_EQ(Registro.AdicionouProgramaInicializacaoWindows(u"OryUtilsTeste", u"\"C:\\App\\a.exe\" -s"),
              TResultStatus());
    EXPECT_EQ(LerDoSistema(CRun, u"OryUtilsTeste"), u"\"\\\"C:\\\\App\\\\a.exe\\\" -s\"");
    EXPECT_EQ(Registro.ExcluiuProgramaInicializacaoWindows(u"OryUtilsTeste"), TResultStatus());
    EXPECT_EQ(LerDoSistema(CRun, u"OryUtilsTeste"), u"");
}

TEST_F(TRegistro, CotaDeObjetosGDI) {
    const auto mensagem = [](std::u16string_view AMaior) {
        return u"Valor cota objetos GDI inválido.\r\nValores permitidos entre 256 e " + std::u16string(AMaior) + u".";
    };
    for (const auto& [versao, maior, texto] :
         {std::tuple{vwWin2000, 16384, u"16384"}, {vwWinXP, 65536, u"65536"}, {vwUnknown, 65536, u"65536"}})
        for (const int valor : {INT32_MIN, 255, 256, maior, maior + 1, INT32_MAX}) {
            const TResultStatus falha{false, mensagem(texto)};
            EXPECT_EQ(Interno::ValidarCotaObjetosGDI(valor, versao),
                      valor < 256 || valor > maior ? falha : TResultStatus());
        }
    // Wine lacks it.
    Registro.CriarChave(crLocalMachine, u"Software\\Microsoft\\Windows NT\\CurrentVersion", u"Windows");
    TValorPreservado cota(CGDI, u"GDIProcessHandleQuota");
    cota.Excluir();
    Falhou(Registro.AlterouCotaLimiteObjetosGDI(255), mensagem(u"65536"), "nothing is written");
    EXPECT_EQ(LerDoSistema(CGDI, u"GDIProcessHandleQuota"), u"");
    EXPECT_EQ(MensagemDe([&] { Registro.BuscarValorCotaLimiteObjetosGDI(); }),
              "Falha ao obter dados de 'GDIProcessHandleQuota'" + ParaUtf8(MotivoDe(Interno::erNaoExiste)));
    EXPECT_EQ(Registro.AlterouCotaLimiteObjetosGDI(65536), TResultStatus());
    EXPECT_EQ(LerDoSistema(CGDI, u"GDIProcessHandleQuota"), u"dword:00010000");
    EXPECT_EQ(Registro.BuscarValorCotaLimiteObjetosGDI(), u"65536");
}

TEST_F(TRegistro, TempoDeInicioDosServicos) {
    const TValorPreservado tempo(CControle, u"ServicesPipeTimeout");
    EXPECT_EQ(Registro.AtualizouTimeoutInicializacaoServico(180'000), TResultStatus());
    EXPECT_EQ(LerDoSistema(CControle, u"ServicesPipeTimeout"), u"dword:0002bf20");
}

}  // namespace
