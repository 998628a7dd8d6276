#pragma once

#include <array>
#include <string_view>

// What grows when an operation is measured at n, 10n and 100n characters.
//
// Every operation that `ory` can call and that takes a text or a list is measured without a word here: each such
// argument grows in turn, of ordinary content, the other ones short. This table has those whose work would hardly begin
// with that (a validation that looks at the first character) or whose size is a number. In the arguments, which are
// JSON,
//   "*prefix|unit|suffix"   is a text of n characters, of whole units
//   ["#item"]               is a list of n/10 texts: item0, item1, ...
//   ["%", 7]                is a list of n values
//   "%"                     is the number n
//   {"folhas": 20}          is a filter with n/20 conditions

struct TCasoDeCrescimento {
    std::string_view Operacao;
    std::string_view Argumentos;
};

// clang-format off
inline constexpr std::array CCasosDeCrescimento{
    TCasoDeCrescimento{"Base64:idaevolta", R"(["*|Olá |"])"},
    TCasoDeCrescimento{"BuscarPastaDoNivelAnterior", R"(["*C:|\\pasta|"])"},
    TCasoDeCrescimento{"BuscarQuantidadeCaractereEmSequencia", R"(["*|aab|","a"])"},
    TCasoDeCrescimento{"BuscarSomaModulo11", R"([["%",2],"*|7|"])"},
    TCasoDeCrescimento{"BuscarTextoFormatado", R"(["7","%","0"])"},
    TCasoDeCrescimento{"CalcularFormula", R"(["*|1,25+(A-2)*3+|7",{"A":1.5},4,1])"},
    TCasoDeCrescimento{"CalcularFormula", R"(["*|SQR(|",{},4,1])"},
    TCasoDeCrescimento{"CompararVersao", R"(["*|1.|1","*|1.|2"])"},
    TCasoDeCrescimento{"ConverterBase64ParaTexto", R"(["*|QUJD|"])"},
    TCasoDeCrescimento{"ConverterStringListParaTextoComDelimitador", R"([["#item com, vírgula "],","])"},
    TCasoDeCrescimento{"ConverterTextoComDelimitadorParaStringList", R"(["*|a;bc;|d",";"])"},
    TCasoDeCrescimento{"ConverterTextoComDelimitadorParaVetorDeStrings", R"(["*|a;bc;|d",";"])"},
    TCasoDeCrescimento{"ConverterTextoParaListaDeParametros", R"(["*|:cliente e :filial, |fim"])"},
    TCasoDeCrescimento{"ConverterTextoParaVetorDeCaracteres:prefixo", R"(["*|abc|","%"])"},
    TCasoDeCrescimento{"CriarCondicaoSQL", R"([["#F.CODIGO = "],"AND"])"},
    TCasoDeCrescimento{"ExtrairEnderecoMACComandoARP", R"(["*|  10.0.0.1 ausente |00-1a-2b-3c-4d-5e"])"},
    TCasoDeCrescimento{"ExtrairTextoEntreTags", R"(["*|<a>x</a|</a>","a"])"},
    TCasoDeCrescimento{"ExtrairUltimaPastaDaURL", R"(["*http://a|/pasta|"])"},
    TCasoDeCrescimento{"FormatarBase", R"(["*|12|","*|.0|"])"},
    TCasoDeCrescimento{"FormatarEspacoEmBranco", R"(["a","%"])"},
    TCasoDeCrescimento{"FormatarInscricaoFederal", R"([1,"*|1.2|"])"},
    TCasoDeCrescimento{"FormatarQuebrasDeTextoHtml", R"(["*|linha\r\n|"])"},
    TCasoDeCrescimento{"LimparTagsHtml", R"(["*|<b>a</b> &amp; |"])"},
    TCasoDeCrescimento{"LimparTagsHtml", R"(["*|<|"])"},
    TCasoDeCrescimento{"LinhasDaSaidaDeComando", R"(["*|linha de saída\r\n|"])"},
    TCasoDeCrescimento{"ListaIPLocalDaSaidaARP", R"(["*|Interface: 10.0.0.1 --- 0x4\r\n|"])"},
    TCasoDeCrescimento{"MontarFiltroSql", R"([{"folhas":20},[],"Where"])"},
    TCasoDeCrescimento{"OrdenarListaDeVersoes", R"([["#3.1."]])"},
    TCasoDeCrescimento{"RepetirCaractere", R"(["a","%"])"},
    TCasoDeCrescimento{"RemoverCaractereSomenteDeTextos", R"(["*|a1-b2 |","-"])"},
    TCasoDeCrescimento{"SepararBlocosSQL", R"(["*SELECT A FROM T WHERE (|X = 'GROUP BY' AND (B = 1) AND |1 = 1) ORDER BY A"])"},
    TCasoDeCrescimento{"SepararBlocosSQL", R"(["*|WHERE (|"])"},
    TCasoDeCrescimento{"SomarBase", R"([["%",3],"*|7|"])"},
    TCasoDeCrescimento{"SubstituirCaracteres", R"(["*|ab|","b","xyz"])"},
    TCasoDeCrescimento{"SubstituirCaracteres", R"(["*|a|","aa","a"])"},
    TCasoDeCrescimento{"SubstituirMultiplosTextos", R"(["*|São João Ltda. |",["São","Ltda."],["Santo","S.A."],true])"},
    TCasoDeCrescimento{"SubstituirMultiplosTextos", R"(["um texto com item7",["#item"],["#novo"],true])"},
    TCasoDeCrescimento{"TextoContemItemVetor", R"(["item que falta",["#item"],true])"},
    TCasoDeCrescimento{"TextoEhAlfaNumerico", R"(["*|a1|"])"},
    TCasoDeCrescimento{"TextoEhSomenteCaracteres", R"(["*|ab|"])"},
    TCasoDeCrescimento{"TextoEhSomenteNumerico", R"(["*|12|"])"},
    TCasoDeCrescimento{"TextoPossuiSomenteCaracteresEspeciais", R"(["*|-*|"])"},
    TCasoDeCrescimento{"ValidouCEI", R"(["*|1.|"])"},
    TCasoDeCrescimento{"ValidouCnpjCpf", R"([1,"*|1.|"])"},
    TCasoDeCrescimento{"ValidouData", R"(["*|12/|"])"},
    TCasoDeCrescimento{"ValidouEmail", R"(["*fulano@|casa.|com"])"},
    TCasoDeCrescimento{"ValidouEmail", R"(["*|a.|@casa.com"])"},
    TCasoDeCrescimento{"ValidouEnderecoIP", R"(["*|1.|"])"},
    TCasoDeCrescimento{"ValidouIE", R"(["*|1.|","SP"])"},
    TCasoDeCrescimento{"ValidouListaEmail", R"([["#fulano@casa.com"]])"},
    TCasoDeCrescimento{"VarToIntDef", R"(["*|1|",0])"},
};
// clang-format on
