#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include "Caixas.hpp"
#include "Campos.hpp"

#include <gtest/gtest.h>

#include <optional>

namespace OryUtils {
namespace {

/// Counts what the person was told.
struct TOuvido {
    int Recusas = 0;
    void Recusar(TEditorDeCampo&) { ++Recusas; }
    void Ouvir(TEditorDeCampo& AEditor) {
        AEditor.OnRecusar = TEditorDeCampo::TAoRecusar::De<&TOuvido::Recusar>(*this);
    }
};

struct TCaso {
    const TFeitioDeCampo& Feitio;
    const char* Digitado;
    std::optional<TTeclaMascara> Tecla;  // pressed afterwards
    const char* NaCaixa;
    const char* Gravado;  // the field's text after the box is left; none: it is refused
    const char* Exibido;
    int Recusas;
};
const TCaso CDigitados[] = {
    {CCpf, "529982a24725", {}, "529.982.247-25", "52998224725", "529.982.247-25", 1},
    {CCpf, "529.982.247-25", {}, "529.982.247-25", "52998224725", "529.982.247-25", 0},
    {CCpf, "529 982 247 25", {}, "529.982.247-25", "52998224725", "529.982.247-25", 0},
    {CCpf, "529", tmEsquerda, "529.   .   -  ", "529", "529.   .   -  ", 0},
    {CCpf, "529", tmApagar, "52 .   .   -  ", "52", "52 .   .   -  ", 0},
    {CCnpj, "11 222 333 0001 81", tmFim, "11.222.333/0001-81", "11222333000181", "11.222.333/0001-81", 0},
    {CCnpj, "11.222.333/0001-81", {}, "11.222.333/0001-81", "11222333000181", "11.222.333/0001-81", 0},
    {CCep, "01310-100", tmExcluir, "01310-100", "01310100", "01310-100", 0},
    {CCep, "013", {}, "013  -   ", nullptr, "013  -   ", 1},
    {CCep, "", tmApagar, "     -   ", "", "", 0},
    {CCrc, "1s", {}, "1S         ", nullptr, "1S         ", 1},
    {CCrc, "1sp123456o5", {}, "1SP123456O5", "1SP123456O5", "1SP123456O5", 0},
    {CCompetencia, "3/2024", {}, "3 /2024", "3 2024", "3 /2024", 0},
    {CFone, "11987654321", {}, "( 11)98765-4321", "( 11)98765-4321", "( 11)98765-4321", 0},
    {CFone, "(11) 93333-4444", {}, "( 11)93333-4444", "( 11)93333-4444", "( 11)93333-4444", 0},
    {CFone, "11 3333-4444", tmApagar, "(   )11333-3444", "(   )11333-3444", "(   )11333-3444", 0},
    {CFoneDDD, "1133334444", {}, "(11)3333-4444", "1133334444", "(11)3333-4444", 0},
    {CFoneDDD, "(11) 93333-4444", {}, "(11)93333-4444", "11933334444", "(11)93333-4444", 0},
    {CFoneDDD, "11933334444", tmApagar, "(11)9333-3444", "1193333444", "(11)9333-3444", 0},
    {CFoneDDD, "0800 123 4567", {}, "0800 123 4567", "08001234567", "0800 123 4567", 0},
    {CFoneDDD, "113333", {}, "(11)3333-    ", nullptr, "(11)3333-    ", 1},
    {CFoneDDD, "+5511933334444", {}, "(55)11933-3344", "55119333344", "(55)11933-3344", 3},
    {CCpfCnpj, "52998224725", {}, "529.982.247-25", "52998224725", "529.982.247-25", 0},
    {CCpfCnpj, "11222333000181", {}, "11.222.333/0001-81", "11222333000181", "11.222.333/0001-81", 0},
    {CCpfCnpj, "12.abc.345/01de-35", {}, "12.ABC.345/01DE-35", "12ABC34501DE35", "12.ABC.345/01DE-35", 0},
    {CCpfCnpj, "112223330001", tmApagar, "112.223.330-00", "11222333000", "112.223.330-00", 0},
    {CCpfCnpj, "12a", {}, "12.A  .   /    -  ", nullptr, "12.A  .   /    -  ", 1},
    {CData, "5/3/2024", {}, "5_/3_/2024", "05/03/2024", "05/03/2024", 0},
    {CData, "30022024", {}, "30/02/2024", nullptr, "30/02/2024", 1},
    {CHora, "7:05", {}, "7_:05:__", "07:05:00", "07:05:00", 0},
    {CMomento, "5/3/24 7:05", {}, "5_/3_/24__ 7_:05", "05/03/2024 07:05:00", "05/03/2024 07:05:00", 0},
    {CLivre, "x y", {}, "x_y__", "x y", "x y  ", 0},
    {CLivre, "x_y", {}, "xy___", "xy", "xy   ", 1},
    {CValor, "1.234,56", {}, "1.234,56", "1234,56", "1.234,56", 0},
    {CValor, "-12x34,5", {}, "-1234,5", "-1234,50", "-1.234,50", 1},
    {CValor, "1234.56", {}, "1234.56", "1234,56", "1.234,56", 0},
    {CValor, "1.23", {}, "1.23", "1,23", "1,23", 0},
    {CValor, "12.34.56", {}, "12.34.56", nullptr, "12.34.56", 1},
    {CValor, "1,2,3", {}, "1,2,3", nullptr, "1,2,3", 1},
    {CValor, "-", {}, "-", nullptr, "-", 1},
    {CPercentual, "12,5%", {}, "12,5%", "12,50", "12,50 %", 0},
    {CInteiro, "1,5", {}, "1,5", nullptr, "1,5", 1},
    {CInteiro, "1.500", {}, "1.500", "1500", "1500", 0},
    {CPequeno, "70000", {}, "70000", nullptr, "70000", 1},
    {CPositivo, "-1", {}, "-1", nullptr, "-1", 1},
    {CGrande, "9223372036854775807", {}, "9223372036854775807", "9223372036854775807", "9223372036854775807", 0},
    {CTexto,
     " a=b;\"\xC3\xA7\xC3\xA3o\" ",
     {},
     " a=b;\"\xC3\xA7\xC3\xA3o\" ",
     " a=b;\"\xC3\xA7\xC3\xA3o\" ",
     " a=b;\"\xC3\xA7\xC3\xA3o\" ",
     0},
};

void OQueSeDigita(TCaixas& ACaixas) {
    for (const TCaso& caso : CDigitados) {
        SCOPED_TRACE(std::string(caso.Feitio.Nome) + ": " + caso.Digitado);
        const auto campo = caso.Feitio.Criar();
        TOuvido ouvido;
        TEditorDeCampo& editor = ACaixas.Ligar(0, *campo);
        ouvido.Ouvir(editor);
        ACaixas.Entrar(0);
        ACaixas.Digitar(DeUtf8(caso.Digitado));
        if (caso.Tecla) ACaixas.Teclar(*caso.Tecla);
        EXPECT_EQ(ParaUtf8(ACaixas.Texto(0)), caso.NaCaixa);
        ACaixas.Deixar();
        EXPECT_EQ(ParaUtf8(ACaixas.Texto(0)), caso.Exibido);
        EXPECT_EQ(editor.GetErro().empty(), caso.Gravado != nullptr) << ParaUtf8(editor.GetErro());
        EXPECT_EQ(ParaUtf8(campo->GetTexto()), caso.Gravado ? caso.Gravado : "") << "a refused text stays in the box";
        EXPECT_EQ(ouvido.Recusas, caso.Recusas);
        ACaixas.Desligar();
    }
}

struct TColado {
    const TFeitioDeCampo& Feitio;
    const char* Colado;
    const char* NaCaixa;  // none: refused, and nothing changes
};
const TColado CColados[] = {
    {CCpf, " 529 982.247/25\r\n", "529.982.247-25"},
    {CCpf, "CPF: 529.982.247-25", nullptr},
    {CCpf, "529.982.247-259", nullptr},
    {CCnpj, "12ABC34501DE35", nullptr},
    {CCnpj, "11.222.333/0001-81", "11.222.333/0001-81"},
    {CCpfCnpj, "12.ABC.345/01DE-35\t", "12.ABC.345/01DE-35"},
    {CFone, "11987654321", "( 11)98765-4321"},
    {CFone, "+55 11 93333-4444", nullptr},
    {CFoneDDD, "(11) 3333-4444", "(11)3333-4444"},
    {CFoneDDD, "0800-123-4567", "0800 123 4567"},
    {CData, "5/3/2024", "5_/3_/2024"},
    {CData, "05-03-2024", "05/03/2024"},
    {CData, "2012-03-05", nullptr},
    {CCompetencia, "2024-03", nullptr},
    {CMomento, "5-3-24 10:12\n", "5_/3_/24__ 10:12"},
    {CLivre, "x y", "x_y__"},
    {CValor, "1234.56", "1234,56"},
    {CValor, "1,234.56", "1234,56"},
    {CValor, "1.234,56", "1234,56"},
    {CValor, "1.234.567", "1234567"},
    {CValor, "1 234 567,8", "1234567,8"},
    {CValor, "R$\xC2\xA0-1.234,56", "-1234,56"},
    {CValor,
     "\xE2\x88\x92"
     "0.125",
     "-0,125"},
    {CValor, "1e5", nullptr},
    {CValor, "1.2345.678", nullptr},
    {CValor, "012.345", "012345"},
    {CValor, "12 34", nullptr},
    {CValor, "12\t345", nullptr},
    {CValor, "10\r\n500", nullptr},
    {CPercentual, "7,5 %", "7,5"},
    {CInteiro, "1,5", nullptr},
    {CInteiro, "2,00", "2"},
    {CInteiro, "abc", nullptr},
};

void OQueSeCola(TCaixas& ACaixas) {
    for (const TColado& caso : CColados) {
        SCOPED_TRACE(std::string(caso.Feitio.Nome) + ": " + caso.Colado);
        const auto campo = caso.Feitio.Criar();
        TOuvido ouvido;
        ouvido.Ouvir(ACaixas.Ligar(0, *campo));
        ACaixas.Entrar(0);
        const std::string antes = ParaUtf8(ACaixas.Texto(0));
        ACaixas.Colar(DeUtf8(caso.Colado));
        EXPECT_EQ(ParaUtf8(ACaixas.Texto(0)), caso.NaCaixa ? caso.NaCaixa : antes);
        EXPECT_EQ(ouvido.Recusas, caso.NaCaixa ? 0 : 1);
        ACaixas.Deixar();
        EXPECT_EQ(campo->EhNulo(), caso.NaCaixa == nullptr);
        ACaixas.Desligar();
    }
}

void DesfazerTrazDeVolta(TCaixas& ACaixas) {
    for (const bool esc : {false, true}) {
        TNumericField valor(ftFloat);
        FormatarCampoValor(valor);
        valor.SetValor(10.5074L);
        TEditorDeCampo& editor = ACaixas.Ligar(0, valor);
        ACaixas.Entrar(0);
        ACaixas.Digitar(u"99");
        EXPECT_TRUE(editor.EstahModificado());
        esc ? ACaixas.TeclarEsc() : ACaixas.TeclarDesfazer();
        EXPECT_EQ(ACaixas.Texto(0), u"10,51");
        ACaixas.Deixar();
        EXPECT_EQ(valor.GetValor(), Variant(10.5074L)) << "undone: untouched";
        ACaixas.Entrar(0);
        ACaixas.Digitar(u"7");
        editor.Gravar();
        EXPECT_EQ(valor.GetValor(), Variant(7.0L));
        esc ? ACaixas.TeclarEsc() : ACaixas.TeclarDesfazer();
        EXPECT_EQ(valor.GetValor(), Variant(10.5074L)) << "as on entering, though it was saved in between";
        ACaixas.Desligar();
    }
}

// What was typed and deleted again is no change: neither rounded nor refused.
void DigitadoERetirado(TCaixas& ACaixas) {
    TNumericField valor(ftFloat);
    FormatarCampoValor(valor);
    valor.SetValor(10.5074L);
    TField cep(ftString);
    FormatarCEP(cep);
    cep.SetValor(u"EC1A 1BB");
    TField* const campos[] = {&valor, &cep};
    for (TField* campo : campos) {
        const Variant antes = campo->GetValor();
        TEditorDeCampo& editor = ACaixas.Ligar(0, *campo);
        ACaixas.Entrar(0);
        ACaixas.Teclar(tmFim);
        ACaixas.Digitar(u"7");
        EXPECT_TRUE(editor.EstahModificado());
        ACaixas.Teclar(tmApagar);
        EXPECT_FALSE(editor.EstahModificado());
        ACaixas.Deixar();
        EXPECT_EQ(campo->GetValor(), antes);
        EXPECT_EQ(editor.GetErro(), u"");
        // Saved in between, the old text is a new value.
        ACaixas.Entrar(0);
        ACaixas.Selecionar(0, 8);
        ACaixas.Digitar(u"12345678");
        editor.Gravar();
        EXPECT_NE(campo->GetValor(), antes);
        campo->SetValor(antes);
        ACaixas.Desligar();
    }
}

void OProgramaMudaOCampoNaVisita(TCaixas& ACaixas) {
    TField cpf(ftString);
    FormatarCPF(cpf);
    TEditorDeCampo& editor = ACaixas.Ligar(0, cpf);
    ACaixas.Entrar(0);
    cpf.SetValor(u"11144477735");
    EXPECT_EQ(ACaixas.Texto(0), u"111.444.777-35") << "nothing typed: shown at once";
    ACaixas.Digitar(u"5");
    cpf.SetValor(u"52998224725");
    EXPECT_EQ(ACaixas.Texto(0), u"5  .   .   -  ") << "what is being typed stays";
    ACaixas.TeclarDesfazer();
    EXPECT_EQ(cpf.GetTexto(), u"52998224725") << "what the program did is not undone";
    ACaixas.Digitar(u"5");
    ACaixas.Deixar();
    EXPECT_EQ(cpf.GetTexto(), u"5");
    cpf.SetTexto(u"");
    EXPECT_EQ(ACaixas.Texto(0), u"");
    FormatarCNPJ(cpf);
    cpf.SetValor(u"11.222.333/0001-81");
    EXPECT_EQ(ACaixas.Texto(0), u"11.222.333/0001-81") << "stored with its marks";
    ACaixas.Escrever(0, u"11144477735000");
    EXPECT_EQ(ACaixas.Texto(0), u"11.144.477/7350-00") << "a text of the program counts as typed";
    editor.Gravar();
    EXPECT_EQ(cpf.GetTexto(), u"11144477735000");
    ACaixas.Desligar();
}

void SomenteLeituraNadaMuda(TCaixas& ACaixas) {
    TNumericField valor(ftFloat);
    FormatarCampoValor(valor);
    valor.SetValor(10.5074L);
    TEditorDeCampo& editor = ACaixas.Ligar(0, valor);
    ACaixas.TornarSomenteLeitura(0, true);
    ACaixas.Entrar(0);
    ACaixas.Digitar(u"7");
    ACaixas.Colar(u"8");
    editor.Gravar();
    ACaixas.Deixar();
    EXPECT_EQ(ACaixas.Texto(0), u"10,51");
    EXPECT_EQ(valor.GetValor(), Variant(10.5074L));
    ACaixas.Escrever(0, u"9");
    valor.SetValor(12.5L);
    EXPECT_EQ(ACaixas.Texto(0), u"12,50") << "a text of the program is none that was typed";
    ACaixas.Entrar(0);
    ACaixas.TornarSomenteLeitura(0, false);
    ACaixas.Digitar(u"7");
    ACaixas.Deixar();
    EXPECT_EQ(valor.GetValor(), Variant(7.0L)) << "released with the focus in it";
    ACaixas.Desligar();
}

// A text over the usual limit of a box, and one that a box of one line changes: never stored cut.
void OQueACaixaNaoMostraNaoSePerde(TCaixas& ACaixas) {
    const std::u16string valores[] = {std::u16string(40000, u'a'), u"duas\r\nlinhas", u"antes\u0000depois"};
    for (const std::u16string& valor : valores) {
        TField campo(ftString);
        campo.SetValor(valor);
        ACaixas.Ligar(0, campo);
        ACaixas.Entrar(0);
        ACaixas.Teclar(tmFim);
        ACaixas.Digitar(u"x");
        ACaixas.Deixar();
        const std::u16string agora = campo.GetTexto();
        EXPECT_TRUE(agora == valor || agora == valor + u"x") << agora.size();
        ACaixas.Desligar();
    }
}

// Another window takes the focus in the middle of a number: it goes on where it was.
void OutraJanelaNoMeio(TCaixas& ACaixas) {
    TField cpf(ftString);
    FormatarCPF(cpf);
    ACaixas.Ligar(0, cpf);
    ACaixas.Entrar(0);
    ACaixas.Digitar(u"52998");
    ACaixas.IrEVoltar();
    EXPECT_EQ(cpf.GetTexto(), u"52998") << "the other window finds it in the field";
    ACaixas.Digitar(u"224725");
    EXPECT_EQ(ACaixas.Texto(0), u"529.982.247-25");
    ACaixas.Deixar();
    EXPECT_EQ(cpf.GetTexto(), u"52998224725");
    ACaixas.Desligar();
}

// One source of formats for keys, reading and showing, whichever it is.
void FormatosMudados(TCaixas& ACaixas) {
    const TFormatosTemporarios ingleses{TFormatSettings{}};
    TNumericField valor(ftFloat);
    FormatarCampoValor(valor);
    valor.SetValor(1234.5L);
    ACaixas.Ligar(0, valor);
    EXPECT_EQ(ACaixas.Texto(0), u"1,234.50");
    GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();
    ACaixas.Entrar(0);
    EXPECT_EQ(ACaixas.Texto(0), u"1234,50") << "a box made before the formats were set";
    ACaixas.Digitar(u"10");
    ACaixas.TeclarDecimal();
    ACaixas.Digitar(u"5");
    EXPECT_EQ(ACaixas.Texto(0), u"10,5");
    // In the middle of typing: the text is read as it was written.
    DefinirFormatSettings(TFormatSettings{});
    ACaixas.Deixar();
    EXPECT_EQ(valor.GetValor(), Variant(10.5L));
    EXPECT_EQ(ACaixas.Texto(0), u"10.50");
    // Boxes that follow the user's formats while the process has others.
    DefinirFormatSettings(BuscarFormatosBrasileiros());
    GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().SetUsarNosControlesDevExpress(false);
    const char16_t decimal = ControladorFormatos().GetFormatos().DecimalSeparator;
    ACaixas.Entrar(0);
    ACaixas.Digitar(u"7");
    ACaixas.TeclarDecimal();
    ACaixas.Digitar(u"25");
    ACaixas.Deixar();
    EXPECT_EQ(valor.GetValor(), Variant(7.25L));
    EXPECT_EQ(ACaixas.Texto(0), std::u16string(u"7") + decimal + u"25");
    GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().SetUsarNosControlesDevExpress(true);
    EXPECT_EQ(ACaixas.Texto(0), u"7,25") << "told of the change";

    TField cnpj(ftString);
    FormatarCNPJ(cnpj);
    TFormatSettings comTraco;
    comTraco.DateSeparator = u'-';
    DefinirFormatSettings(comTraco);
    ACaixas.Ligar(1, cnpj);
    ACaixas.Entrar(1);
    ACaixas.Digitar(u"11222333000181");
    EXPECT_EQ(ACaixas.Texto(1), u"11.222.333/0001-81") << "the mark of a number is not that of dates";
    ACaixas.Deixar();
    ACaixas.Desligar();
}

// What cannot be read stays, is told, and may be mended.
void ORecusadoSeCorrige(TCaixas& ACaixas) {
    TField data(ftDate);
    FormatarData(data);
    TEditorDeCampo& editor = ACaixas.Ligar(0, data);
    ACaixas.Entrar(0);
    ACaixas.Digitar(u"30022024");
    ACaixas.Deixar();
    ACaixas.Entrar(0);
    EXPECT_EQ(ACaixas.Texto(0), u"30/02/2024");
    EXPECT_NE(editor.GetErro(), u"");
    ACaixas.Selecionar(0, 2);
    ACaixas.Digitar(u"29");
    ACaixas.Deixar();
    EXPECT_EQ(data.GetTexto(), u"29/02/2024");
    EXPECT_EQ(editor.GetErro(), u"");
    // A value that the mask does not take is edited as it stands, and must fit when it is changed.
    TField cep(ftString);
    FormatarCEP(cep);
    cep.SetValor(u"EC1A 1BB");
    TEditorDeCampo& editorCep = ACaixas.Ligar(1, cep);
    ACaixas.Entrar(1);
    EXPECT_EQ(ACaixas.Texto(1), u"EC1A 1BB");
    ACaixas.Teclar(tmFim);
    ACaixas.Digitar(u"x");
    ACaixas.Deixar();
    EXPECT_NE(editorCep.GetErro(), u"");
    EXPECT_EQ(cep.GetTexto(), u"EC1A 1BB");
    ACaixas.Entrar(1);
    ACaixas.TeclarDesfazer();
    ACaixas.Digitar(u"01310100");
    ACaixas.Deixar();
    EXPECT_EQ(cep.GetTexto(), u"01310100");
    ACaixas.Desligar();
}

constexpr struct {
    void (*Conferir)(TCaixas&);
    const char* Nome;
} CProvas[] = {
    {OQueSeDigita, "typed"},
    {OQueSeCola, "pasted"},
    {DesfazerTrazDeVolta, "undone"},
    {DigitadoERetirado, "typed and deleted"},
    {OProgramaMudaOCampoNaVisita, "changed by the program"},
    {SomenteLeituraNadaMuda, "read-only"},
    {OQueACaixaNaoMostraNaoSePerde, "what a box does not show"},
    {OutraJanelaNoMeio, "another window"},
    {FormatosMudados, "changed formats"},
    {ORecusadoSeCorrige, "refused and mended"},
};

}  // namespace

void ConferirCaixas(TCaixas& ACaixas) {
    for (const auto& prova : CProvas) {
        SCOPED_TRACE(prova.Nome);
        prova.Conferir(ACaixas);
    }
}

}  // namespace OryUtils
