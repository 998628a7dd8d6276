// The text of exported registry files: read as an import reads it, edited without losing a character.
#include "oryutils/readers/ArquivoReg.hpp"

#include "oryutils/characters/Unidades.hpp"

#include <gtest/gtest.h>

#include <random>

using namespace OryUtils::Interno;
using OryUtils::Interno::BytesDeUnidades;
using OryUtils::Interno::TArquivoReg;

namespace {

constexpr std::u16string_view CCabecalho = u"Windows Registry Editor Version 5.00\r\n";

std::string BytesDe(std::u16string_view AResto) {
    return "\xFF\xFE" + BytesDeUnidades(std::u16string(CCabecalho).append(AResto));
}

TArquivoReg Abrir(std::u16string_view AResto) { return TArquivoReg::DeBytes(BytesDe(AResto)).value(); }

TDadoRegistro Texto(std::u16string_view ATexto) { return {tdrTexto, BytesDeUnidades(std::u16string(ATexto) + u'\0')}; }
TDadoRegistro Bytes(std::uint32_t ATipo, std::string_view ABytes) { return {ATipo, std::string(ABytes)}; }

TEST(ArquivoReg, LeCadaFormaDeValor) {
    using namespace std::string_view_literals;
    const struct {
        std::u16string_view Linha;
        std::optional<TDadoRegistro> Esperado;
        const char* Porque;
    } casos[] = {
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
        {u"[HKEY_LOCAL_MACHINE\\K", {}, "broken key"},
        {u"[HKEY_LOCAL_MACHINE\\K\\\\L]\r\n\"v\"=\"a\"", {}, "below no key"},
        {u"\"v\"=\"a", {}, "cut off"},
        {u"\"v\"=\"a\r\n\"", {}, "a text does not go on in the next line"},
        {u"\"v\"=\"C:\\x\"", {}, "no such escape"},
        {u"\"v\"=\"a\"b", {}, "something behind it"},
        {u"\"v\"=dword:123456789", {}, "too many digits"},
        {u"\"v\"=dword:", {}, "no digits"},
        {u"\"v\"=hex:01,", {}, "cut off behind a comma"},
        {u"\"v\"=hex:01,\\", {}, "cut off where it goes on"},
        {u"\"v\"=hex:001", {}, "three digits"},
        {u"\"v\"=hex(g):01", {}, "no number of a kind"},
        {u"\"v\"=hex(123456789):01", {}, "nor this"},
        {u"\"v\"=HEX:01", {}, "capitals"},
        {u"v=\"a\"", {}, "no quotes"},
        {u"@=\"a\"", {}, "the default value is another one"},
        {u"; \"v\"=\"a\"", {}, "a comment"},
        {u"", {}, "nothing"},
    };
    for (const auto& caso : casos) {
        const TArquivoReg arquivo = Abrir(u"\r\n[HKEY_LOCAL_MACHINE\\K]\r\n" + std::u16string(caso.Linha));
        EXPECT_EQ(arquivo.Ler(u"HKEY_LOCAL_MACHINE\\K", u"v"), caso.Esperado) << caso.Porque;
        EXPECT_EQ(arquivo.ListarValores(u"HKEY_LOCAL_MACHINE\\K").size(),
                  caso.Esperado.has_value() || caso.Linha.starts_with(u"@") ? 1u : 0u)
            << caso.Porque;
    }
}

TEST(ArquivoReg, RecusaOQueNaoEhArquivoExportado) {
    const std::string bom = BytesDe(u"\r\n[HKEY_LOCAL_MACHINE\\K]\r\n");
    ASSERT_TRUE(TArquivoReg::DeBytes(bom));
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
    for (const auto& [bytes, porque] : casos) EXPECT_FALSE(TArquivoReg::DeBytes(bytes)) << porque;
    // Cut anywhere else it still is one, with what came whole.
    for (std::size_t i = 74; i < bom.size(); i += 2) EXPECT_TRUE(TArquivoReg::DeBytes(bom.substr(0, i))) << i;
}

TEST(ArquivoReg, EdicaoDeixaORestoComoEsta) {
    constexpr std::u16string_view CAntes =
        u"; topo\r\n\r\n[HKEY_LOCAL_MACHINE\\A]\r\n\"x\"=dword:00000001 ; "
        u"nota\r\nlixo\r\n\"quebrado\"=hex:0z,\\\r\n\r\n"
        u"[HKEY_LOCAL_MACHINE\\A\\B\\C]\n\"y\"=\"1\"\n; fim sem quebra";
    static constexpr std::u16string_view CChave = u"HKEY_LOCAL_MACHINE\\a";
    const struct {
        void (*Editar)(TArquivoReg&);
        std::u16string_view De, Para;  // what changes of CAntes
        const char* Porque;
    } casos[] = {
        {[](TArquivoReg& A) { A.Gravar(CChave, u"X", Bytes(4, std::string("\2\0\0\0", 4))); }, u"00000001", u"00000002",
         "its comment stays"},
        {[](TArquivoReg& A) { A.Gravar(CChave, u"n\"\\", Texto(u"\\")); }, u"hex:0z,\\\r\n",
         u"hex:0z,\\\r\n\"n\\\"\\\\\"=\"\\\\\"\r\n", "a new value at the end of its key"},
        {[](TArquivoReg& A) { A.Gravar(CChave, u"", Texto(u"\r")); }, u"hex:0z,\\\r\n",
         u"hex:0z,\\\r\n@=hex(1):0d,00,00,00\r\n", "a control does not stand between quotes"},
        {[](TArquivoReg& A) { A.ExcluirValor(CChave, u"x"); }, u"\"x\"=dword:00000001 ; nota\r\n", u"",
         "one line less"},
        {[](TArquivoReg& A) { A.CriarChave(u"HKEY_LOCAL_MACHINE\\A\\B"); }, u"", u"", "the key is there already"},
        {[](TArquivoReg& A) { A.Gravar(u"HKEY_LOCAL_MACHINE\\A\\B", u"z", Texto(u"")); }, u"quebra",
         u"quebra\r\n\r\n[HKEY_LOCAL_MACHINE\\A\\B]\r\n\"z\"=\"\"\r\n", "a key that only another one implies"},
        {[](TArquivoReg& A) { A.ExcluirChave(u"HKEY_LOCAL_MACHINE\\A\\B\\C"); },
         u"[HKEY_LOCAL_MACHINE\\A\\B\\C]\n\"y\"=\"1\"\n; fim sem quebra", u"\r\n[HKEY_LOCAL_MACHINE\\A\\B]\r\n",
         "the key above stays"},
        {[](TArquivoReg& A) { A.ExcluirChave(u"HKEY_LOCAL_MACHINE"); }, u"", u"", "a root stays"},
    };
    for (const auto& caso : casos) {
        TArquivoReg arquivo = Abrir(CAntes);
        caso.Editar(arquivo);
        std::u16string esperado(CAntes);
        if (!caso.De.empty()) esperado.replace(esperado.rfind(caso.De), caso.De.size(), caso.Para);
        EXPECT_EQ(arquivo.ParaBytes(), BytesDe(esperado)) << caso.Porque;
        EXPECT_EQ(arquivo.BuscarTamanho(), arquivo.ParaBytes().size());
    }
}

TEST(ArquivoReg, LinhasLongasQuebramAntesDaColuna80) {
    TArquivoReg arquivo;
    for (std::size_t tamanho = 0; tamanho < 200; ++tamanho) {
        const TDadoRegistro dado{tdrBinario, std::string(tamanho, '\xA5')};
        arquivo.Gravar(u"HKEY_LOCAL_MACHINE\\K", u"valor", dado);
        ASSERT_EQ(arquivo.Ler(u"HKEY_LOCAL_MACHINE\\K", u"valor"), dado);
    }
    const std::u16string texto = OryUtils::Interno::UnidadesDeBytes(arquivo.ParaBytes());
    for (std::size_t inicio = 0; inicio < texto.size();) {
        const std::size_t fim = texto.find(u"\r\n", inicio);
        EXPECT_LE(fim - inicio, 80u);
        inicio = fim + 2;
    }
}

// A megabyte on one line, a hundred thousand keys, and every line one that asks to go on.
TEST(ArquivoReg, AguentaOQueEhGrande) {
    const std::u16string milhao(1'000'000, u'"');
    TArquivoReg arquivo;
    arquivo.Gravar(u"HKEY_LOCAL_MACHINE\\K", u"v", Texto(milhao));
    EXPECT_EQ(arquivo.Ler(u"HKEY_LOCAL_MACHINE\\K", u"v"), Texto(milhao));

    std::u16string chaves, emendas;
    for (int i = 0; i < 100'000; ++i) {
        chaves += u"[HKEY_LOCAL_MACHINE\\K\\";
        for (int d = 100'000; d > 0; d /= 10) chaves += static_cast<char16_t>(u'0' + i / d % 10);
        chaves += u"]\r\n";
        emendas += u"\"v\"=hex:\\\r\n00,\\\r\n";
    }
    EXPECT_EQ(Abrir(chaves).ListarSubchaves(u"hkey_local_machine\\k").size(), 100'000u);
    EXPECT_FALSE(Abrir(u"[HKEY_LOCAL_MACHINE\\K]\r\n" + emendas).Ler(u"HKEY_LOCAL_MACHINE\\K", u"v"));
}

}  // namespace
