// Exported registry files: read as an import reads them, written as an export shows them.
#include "oryutils/readers/ArquivoReg.hpp"

#include "oryutils/characters/Unidades.hpp"

#include <gtest/gtest.h>

using namespace OryUtils::Interno;

namespace {

constexpr std::u16string_view CCabecalho = u"Windows Registry Editor Version 5.00\r\n";

std::string BytesDe(std::u16string_view AResto) {
    return "\xFF\xFE" + BytesDeUnidades(std::u16string(CCabecalho).append(AResto));
}

TArquivoReg Abrir(std::u16string_view AResto) { return LerArquivoReg(BytesDe(AResto)).value(); }

// A value of HKEY_LOCAL_MACHINE\AChave; none when the key or the value is missing.
std::optional<TDadoRegistro> Ler(TArquivoReg& AArquivo, std::u16string_view AChave, std::u16string_view AValor) {
    TChaveReg* chave = AArquivo.Topo.Buscar(u"HKEY_LOCAL_MACHINE\\" + std::u16string(AChave));
    if (!chave || !chave->Valores.contains(AValor)) return {};
    return chave->Valores.find(AValor)->second;
}

TDadoRegistro Texto(std::u16string_view ATexto) { return {tdrTexto, BytesDeUnidades(std::u16string(ATexto) + u'\0')}; }
TDadoRegistro Bytes(std::uint32_t ATipo, std::string_view ABytes) { return {ATipo, std::string(ABytes)}; }

TEST(ArquivoReg, LeCadaFormaDeValor) {
    using namespace std::string_view_literals;
    const std::tuple<std::u16string_view, std::optional<TDadoRegistro>, const char*> casos[] = {
        {u"\"v\"=\"C:\\\\a \\\"b\\\"\"", Texto(u"C:\\a \"b\""), "text with both escapes"},
        {u"\"V\"=\"\"", Texto(u""), "names ignore case"},
        {u"  \"v\" = \"x\" ; nota", Texto(u"x"), "blanks and a comment"},
        {u"\"v\"=dword:0000000A", Bytes(4, "\x0A\0\0\0"sv), "integer, capitals"},
        {u"\"v\"=dword:1f", Bytes(4, "\x1F\0\0\0"sv), "fewer digits"},
        {u"\"v\"=hex:", Bytes(3, ""), "no bytes"},
        {u"\"v\"=hex:0,ff , 1", Bytes(3, "\0\xFF\1"sv), "one digit, blanks"},
        {u"\"v\"=hex:01,\\\r\n  02,\\\n\t03", Bytes(3, "\1\2\3"), "goes on twice"},
        {u"\"v\"=hex:01\\\r\n,02", Bytes(3, "\1\2"), "goes on before the comma"},
        {u"\"v\"=hex(ffffffff):01", Bytes(0xFFFFFFFF, "\1"), "any kind"},
        {u"\"v\"=\"a\"\r\n\"v\"=\"b\"", Texto(u"b"), "the later one counts"},
        {u"\"v\"=\"a\"\r\n[HKEY_LOCAL_MACHINE\\k]\r\n\"v\"=\"b\"", Texto(u"b"), "a key given twice"},
        {u"\"v\"=\"a\"\r\n\"v\"=-", {}, "taken away"},
        {u"\"v\"=-\n\"v\"=\"a\"\n", Texto(u"a"), "taken away before"},
        {u"\"v\"=\"a\"\r\n[-HKEY_LOCAL_MACHINE\\K]", {}, "its key taken away"},
        {u"\"v\"=\"a\"\r\n[-HKEY_LOCAL_MACHINE]", {}, "the root taken away"},
        {u"\"v\"=\"a\"\r\n[-HKEY_LOCAL_MACHINE\\KK]", Texto(u"a"), "another key taken away"},
        {u"@=\"a\"", {}, "the default value is another one"},
        {u"; \"v\"=\"a\"", {}, "a comment"},
        {u"", {}, "nothing"},
    };
    for (const auto& [linha, esperado, porque] : casos) {
        SCOPED_TRACE(porque);
        TArquivoReg arquivo = Abrir(u"\r\n[HKEY_LOCAL_MACHINE\\K]\r\n" + std::u16string(linha));
        EXPECT_FALSE(arquivo.PerdeuLinhas);
        EXPECT_EQ(Ler(arquivo, u"K", u"v"), esperado);
        const TChaveReg* chave = arquivo.Topo.Buscar(u"hkey_local_machine\\k");
        EXPECT_EQ(chave ? chave->Valores.size() : 0u, esperado || linha.starts_with(u"@") ? 1u : 0u);
    }
}

TEST(ArquivoReg, DizQuandoUmaLinhaNaoFoiEntendida) {
    const std::pair<std::u16string_view, const char*> casos[] = {
        {u"[HKEY_LOCAL_MACHINE\\K", "broken key"},
        {u"[HKEY_LOCAL_MACHINE\\K\\\\L]\r\n\"v\"=\"a\"", "below no key"},
        {u"\"v\"=\"a", "cut off"},
        {u"\"v\"=\"a\r\n\"", "a text does not go on in the next line"},
        {u"\"v\"=\"C:\\x\"", "no such escape"},
        {u"\"v\"=\"a\"b", "something behind it"},
        {u"\"v\"=dword:123456789", "too many digits"},
        {u"\"v\"=dword:", "no digits"},
        {u"\"v\"=hex:01,", "cut off behind a comma"},
        {u"\"v\"=hex:01,\\", "cut off where it goes on"},
        {u"\"v\"=hex:001", "three digits"},
        {u"\"v\"=hex(g):01", "no number of a kind"},
        {u"\"v\"=hex(123456789):01", "nor this"},
        {u"\"v\"=HEX:01", "capitals"},
        {u"v=\"a\"", "no quotes"},
        {u"[-HKEY_LOCAL_MACHINE\\K]\r\n\"v\"=\"a\"", "below a key taken away"},
        {u"\"w\"=hex:0z,\\\r\n\r\n", "no digit of a byte"},
    };
    for (const auto& [linha, porque] : casos) {
        TArquivoReg arquivo = Abrir(u"[HKEY_LOCAL_MACHINE\\A]\r\n@=\"1\"\r\n[HKEY_LOCAL_MACHINE\\K]\r\n" +
                                    std::u16string(linha) + u"\r\n[HKEY_LOCAL_MACHINE\\B]\r\n@=\"2\"");
        EXPECT_TRUE(arquivo.PerdeuLinhas) << porque;
        EXPECT_EQ(Ler(arquivo, u"K", u"v"), std::nullopt) << porque;
        EXPECT_EQ(Ler(arquivo, u"A", u""), Texto(u"1")) << "what stands before, " << porque;
        EXPECT_EQ(Ler(arquivo, u"B", u""), Texto(u"2")) << "what stands behind, " << porque;
    }
    EXPECT_TRUE(Abrir(u"\"v\"=\"a\"").PerdeuLinhas) << "a value of no key";
}

TEST(ArquivoReg, RecusaOQueNaoEhArquivoExportado) {
    const std::string bom = BytesDe(u"\r\n[HKEY_LOCAL_MACHINE\\K]\r\n");
    ASSERT_TRUE(LerArquivoReg(bom));
    const std::pair<std::string, const char*> casos[] = {
        {"", "empty"},
        {"\xFF\xFE", "the mark alone"},
        {bom.substr(2), "no mark"},
        {bom.substr(0, bom.size() - 1), "half a character"},
        {"\xFE\xFF" + bom.substr(2), "the other order of bytes"},
        {"Windows Registry Editor Version 5.00\r\n", "8-bit characters"},
        {"\xFF\xFE" + BytesDeUnidades(u"REGEDIT4\r\n"), "the older format"},
        {"\xFF\xFE" + BytesDeUnidades(u"Windows Registry Editor Version 5.001\r\n"), "another version"},
    };
    for (const auto& [bytes, porque] : casos) EXPECT_FALSE(LerArquivoReg(bytes)) << porque;
    // Cut anywhere else it still is one, with what came whole.
    for (std::size_t i = 74; i < bom.size(); i += 2) EXPECT_TRUE(LerArquivoReg(bom.substr(0, i))) << i;
}

TEST(ArquivoReg, EscreveComoUmaExportacao) {
    constexpr std::u16string_view CAntes =
        u"; topo\r\n\r\n[HKEY_LOCAL_MACHINE\\b\\C]\n\"Y\"=\"1\" ; nota\n\r\n"
        u"[HKEY_LOCAL_MACHINE\\B]\r\n\"x\"=hex(1234):1,\\\r\n  02\r\n@=dword:A\r\n; fim sem quebra";
    constexpr std::u16string_view CComAB =
        u"\r\n[HKEY_LOCAL_MACHINE\\b]\r\n@=dword:0000000a\r\n\"x\"=hex(1234):01,02\r\n";
    constexpr std::u16string_view CComC = u"\r\n[HKEY_LOCAL_MACHINE\\b\\C]\r\n\"Y\"=\"1\"\r\n";
    static constexpr std::u16string_view CChave = u"HKEY_LOCAL_MACHINE\\b";
    const auto juntar = [](auto... AParte) { return (std::u16string() + ... + std::u16string(AParte)); };
    const std::tuple<void (*)(TChaveReg&), std::u16string, const char*> casos[] = {
        {[](TChaveReg&) {}, juntar(CComAB, CComC), "first spellings, in order, without comments"},
        {[](TChaveReg& ATopo) { ATopo.Criar(u"HKEY_LOCAL_MACHINE\\B").Valores[u"X"] = Texto(u"\\\""); },
         juntar(u"\r\n[HKEY_LOCAL_MACHINE\\b]\r\n@=dword:0000000a\r\n\"x\"=\"\\\\\\\"\"\r\n", CComC), "escapes"},
        {[](TChaveReg& ATopo) { ATopo.Criar(CChave).Valores[u"z\"\\"] = Texto(u"\r"); },
         juntar(CComAB, u"\"z\\\"\\\\\"=hex(1):0d,00,00,00\r\n", CComC), "a control does not stand between quotes"},
        {[](TChaveReg& ATopo) { ATopo.Criar(u"HKEY_LOCAL_MACHINE\\B\\c"); }, juntar(CComAB, CComC), "it is there"},
        {[](TChaveReg& ATopo) { ATopo.Criar(u"HKEY_LOCAL_MACHINE\\b\\d\\e"); },
         juntar(CComAB, CComC, u"\r\n[HKEY_LOCAL_MACHINE\\b\\d\\e]\r\n"), "the one above is told by it"},
        {[](TChaveReg& ATopo) { ATopo.Excluir(u"HKEY_LOCAL_MACHINE\\B\\c"); }, juntar(CComAB), "the key above stays"},
        {[](TChaveReg& ATopo) { ATopo.Excluir(CChave); }, u"\r\n[HKEY_LOCAL_MACHINE]\r\n", "with all below it"},
        {[](TChaveReg& ATopo) { ATopo.Excluir(u"HKEY_LOCAL_MACHINE\\x\\y"); }, juntar(CComAB, CComC), "no such key"},
    };
    for (const auto& [editar, esperado, porque] : casos) {
        TArquivoReg arquivo = Abrir(CAntes);
        editar(arquivo.Topo);
        const std::string bytes = EscreverArquivoReg(arquivo.Topo);
        EXPECT_EQ(bytes, BytesDe(esperado)) << porque;
        EXPECT_EQ(EscreverArquivoReg(LerArquivoReg(bytes)->Topo), bytes) << porque;
    }
}

TEST(ArquivoReg, LinhasLongasQuebramAntesDaColuna80) {
    TChaveReg topo;
    for (std::size_t tamanho = 0; tamanho < 200; ++tamanho)
        topo.Criar(u"HKEY_LOCAL_MACHINE\\K").Valores[u"valor" + std::u16string(tamanho, u'x')] = {
            tdrBinario, std::string(tamanho, '\xA5')};
    const std::string bytes = EscreverArquivoReg(topo);
    EXPECT_EQ(LerArquivoReg(bytes)->Topo.Buscar(u"HKEY_LOCAL_MACHINE\\K")->Valores,
              topo.Buscar(u"HKEY_LOCAL_MACHINE\\K")->Valores);
    const std::u16string texto = UnidadesDeBytes(bytes);
    for (std::size_t inicio = 0, fim; inicio < texto.size(); inicio = fim + 2) {
        fim = texto.find(u"\r\n", inicio);
        // A name is never broken.
        EXPECT_LE(fim - inicio, texto[inicio] == u'"' && texto.find(u'=', inicio) - inicio > 65 ? 300u : 80u);
    }
}

// A megabyte on one line, a hundred thousand keys, and every line one that asks to go on.
TEST(ArquivoReg, AguentaOQueEhGrande) {
    const std::u16string milhao(1'000'000, u'"');
    TChaveReg topo;
    topo.Criar(u"HKEY_LOCAL_MACHINE\\K").Valores[u"v"] = Texto(milhao);
    TArquivoReg arquivo = *LerArquivoReg(EscreverArquivoReg(topo));
    EXPECT_EQ(Ler(arquivo, u"K", u"v"), Texto(milhao));

    std::u16string chaves, emendas;
    for (int i = 0; i < 100'000; ++i) {
        chaves += u"[HKEY_LOCAL_MACHINE\\K\\";
        for (int d = 100'000; d > 0; d /= 10) chaves += static_cast<char16_t>(u'0' + i / d % 10);
        chaves += u"]\r\n";
        emendas += u"\"v\"=hex:\\\r\n00,\\\r\n";
    }
    EXPECT_EQ(Abrir(chaves).Topo.Buscar(u"hkey_local_machine\\k")->Subchaves.size(), 100'000u);
    EXPECT_TRUE(Abrir(u"[HKEY_LOCAL_MACHINE\\K]\r\n" + emendas).PerdeuLinhas);
}

}  // namespace
