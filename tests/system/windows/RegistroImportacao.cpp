// The system's own registry editor takes what the settings store writes, and the store reads what it exports.
#include "oryutils/characters/Unidades.hpp"
#include "oryutils/platform/windows/Windows.hpp"
#include "oryutils/readers/ArquivoReg.hpp"

#include "files/ApoioArquivos.hpp"
#include "system/RegistroDeTeste.hpp"

using namespace OryUtils;
using Interno::BytesDeUnidades;
using Interno::TDadoRegistro;
using Teste::TRegistro;

namespace {

void ExecutarRegedit(std::u16string AArgumentos) {
    std::u16string comando = u"regedit.exe " + AArgumentos;
    STARTUPINFOW inicio{};
    inicio.cb = sizeof inicio;
    PROCESS_INFORMATION processo{};
    ASSERT_TRUE(::CreateProcessW(nullptr, Interno::ParaWide(comando.data()), nullptr, nullptr, FALSE, 0, nullptr,
                                 nullptr, &inicio, &processo));
    ::WaitForSingleObject(processo.hProcess, INFINITE);
    ::CloseHandle(processo.hThread);
    ::CloseHandle(processo.hProcess);
}

TEST_F(TRegistro, EditorDoSistemaImportaEExporta) {
    const std::u16string chave = u"HKEY_LOCAL_MACHINE\\" + std::u16string(Teste::CChave) + u"\\São [1]\\\xD83D\xDE00";
    const std::u16string abaixo = chave.substr(chave.find(u'\\') + 1);
    const auto texto = [](std::u16string_view ATexto) { return BytesDeUnidades(std::u16string(ATexto) + u'\0'); };
    const std::pair<std::u16string, TDadoRegistro> valores[] = {
        {u"", {Interno::tdrTexto, texto(u"valor padrão")}},
        {u"texto \"x\" = \\", {Interno::tdrTexto, texto(u"C:\\Programas \"x\"; [y] @ \xD83D\xDE00")}},
        {u"vazio", {Interno::tdrTexto, texto(u"")}},
        {u"linhas", {Interno::tdrTexto, texto(u"a\r\nb\tc")}},
        {u"expansível", {Interno::tdrTextoExpansivel, texto(u"%PATH%")}},
        {u"lista", {Interno::tdrListaDeTextos, texto(std::u16string(u"um\0dois\0", 8))}},
        {u"inteiro", {Interno::tdrInteiro, std::string("\xFE\xFF\xFF\xFF", 4)}},
        {u"longo", {Interno::tdrInteiro64, std::string("\1\2\3\4\5\6\7\x88", 8)}},
        {u"binário", {Interno::tdrBinario, std::string(300, '\x5A')}},
        {u"nada", {Interno::tdrNenhum, ""}},
    };
    Interno::TChaveReg topo;
    for (const auto& [nome, dado] : valores) topo.Criar(chave).Valores[nome] = dado;
    const TPastaTemporaria pasta(u"oryregistro");
    const std::u16string caminho = pasta.Gravar(u"teste.reg", Interno::EscreverArquivoReg(topo));
    ExecutarRegedit(u"/S \"" + caminho + u"\"");

    Interno::TChaveRegistro aberta;
    ASSERT_EQ(aberta.Abrir(crLocalMachine, abaixo, arLeitura, false), Interno::erNenhum);
    for (const auto& [nome, esperado] : valores) {
        TDadoRegistro dado;
        EXPECT_EQ(aberta.Ler(nome, dado), Interno::erNenhum);
        EXPECT_EQ(dado, esperado) << std::filesystem::path(nome).string();
    }
    std::vector<std::u16string> nomes;
    aberta.ListarValores(nomes);
    EXPECT_EQ(nomes.size(), std::size(valores));

    const std::u16string exportado = pasta.Nome("exportado.reg");
    ExecutarRegedit(u"/E \"" + exportado + u"\" \"HKEY_LOCAL_MACHINE\\" + std::u16string(Teste::CChave) + u"\"");
    auto lido = Interno::LerArquivoReg(LerBytes(exportado));
    const Interno::TChaveReg* lida = lido ? lido->Topo.Buscar(chave) : nullptr;
    ASSERT_TRUE(lida);
    for (const auto& [nome, esperado] : valores) {
        // Editors differ in how they export a text of several lines, some of them so that nothing can read it.
        if (nome == u"linhas") continue;
        ASSERT_TRUE(lida->Valores.contains(nome));
        EXPECT_EQ(lida->Valores.find(nome)->second, esperado) << std::filesystem::path(nome).string();
    }
}

// The system takes any character but that of code 0.
TEST_F(TRegistro, NomesComQuebraDeLinha) {
    const std::u16string chave = std::u16string(Teste::CChave) + u"\\duas\r\nlinhas";
    Registro.CriarChave(crLocalMachine, Teste::CChave, u"duas\r\nlinhas");
    EXPECT_EQ(Registro.AdicionouValor(crLocalMachine, chave, 7, u"a\nb"), TResultStatus());
    EXPECT_EQ(Teste::LerDoSistema(chave, u"a\nb"), u"dword:00000007");
    EXPECT_EQ(Registro.ExcluiuValor(crLocalMachine, chave, u"A\nB"), TResultStatus());
    EXPECT_EQ(Registro.ExcluiuChave(crLocalMachine, Teste::CChave, u"duas\r\nlinhas"), TResultStatus());
    EXPECT_FALSE(Registro.AdicionouValor(crLocalMachine, Teste::CChave, 7, std::u16string_view(u"a\0b", 3)).Status);
}

}  // namespace
