#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"

#include "comum/Acaso.hpp"
#include "comum/Casos.hpp"
#include "comum/MensagemDe.hpp"

#include <new>

namespace OryUtils {
namespace {

using TFiltro = TOryUtilsFiltroSql;
using TLista = std::vector<Variant>;

struct TFolha {
    std::u16string_view Campo;
    TCondicaoFiltro Condicao;
    Variant Valor{};
    bool Aspas = false;
    bool Maiusculas = false;
};

void Preencher(TFiltro& ANo, const TFolha& AFolha, std::u16string_view ATabela = u"f") {
    ANo.SetTabela(ATabela);
    ANo.SetCampo(AFolha.Campo);
    ANo.SetCondicao(AFolha.Condicao);
    ANo.SetValor(AFolha.Valor);
    ANo.SetQuoteStr(AFolha.Aspas);
    ANo.SetUsarUpperCase(AFolha.Maiusculas);
}

std::string Montar(const TFolha& AFolha) {
    TFiltro no(ofAnd);
    Preencher(no, AFolha);
    return ParaUtf8(no.BuscarSQL());
}

TEST(FiltroSql, Condicoes) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const TDateTime data = CodificarData(2024, 3, 5);
    Testes::Conferir<std::string>({
        {Montar({u"nome", cfIgual, u"Ana", true}), "( F.NOME = 'Ana' )",
         "quoted; names in capitals, the value as it is"},
        {Montar({u"nome", cfIgual, u"Ana", true, true}), "( UPPER(F.NOME) = UPPER('Ana') )", "both sides"},
        {Montar({u"nome", cfIgual, u"m.nome"}), "( F.NOME = m.nome )", "unquoted text is the program's own SQL"},
        {Montar({u"n", cfMaior, 5}), "( F.N > 5 )"},
        {Montar({u"n", cfMaiorIgual, -5}), "( F.N >= -5 )"},
        {Montar({u"n", cfMenor, 12.5}), "( F.N < 12,5 )", "the number is written as the process writes numbers"},
        {Montar({u"n", cfMenorIgual, TMoeda::De(0.1L)}), "( F.N <= 0,1 )"},
        {Montar({u"d", cfDiferente, data, true}), "( F.D <> '05/03/2024' )", "midnight: no time"},
        {Montar({u"n", cfIgual, TNulo{}, true}), "( F.N = '' )", "null is no text"},
        {Montar({u"n", cfIgual, {}}), "( F.N =  )", "nothing was given: incomplete SQL, as written"},
        {Montar({u"cod", cfIn, TLista{1, 2, 3}, true}), "( F.COD IN ('1','2','3' ) )", "no blanks between, one behind"},
        {Montar({u"cod", cfIn, TLista{1, u"x", TNulo{}}}), "( F.COD IN (1,x, ) )", "elements of any kind"},
        {Montar({u"cod", cfNotIn, u"a'b", true}), "( F.COD NOT IN ('a''b' ) )", "one value is a list of one"},
        {Montar({u"cod", cfIn, 7, false, true}), "( UPPER(F.COD) IN (7 ) )", "only the column is turned"},
        {Montar({u"x", cfIsNull, 9, true, true}), "( F.X IS NULL  )", "neither value nor UPPER"},
        {Montar({u"x", cfIsNotNull}), "( F.X IS NOT NULL  )"},
        {Montar({u"nome", cfIniciaCom, u"AB"}), "( F.NOME STARTING WITH 'AB' )", "quoted without QuoteStr"},
        {Montar({u"nome", cfIniciaCom, 12, false, true}), "( UPPER(F.NOME) STARTING WITH '12' )",
         "the value is never turned"},
        {Montar({u"nome", cfTerminaCom, u"''"}), "( F.NOME LIKE '%''''' )"},
        {Montar({u"nome", cfTerminaCom, {}}), "( F.NOME LIKE '%' )", "unassigned adds nothing"},
        {Montar({u"nome", cfContem, u"a'b"}), "( F.NOME LIKE '%a''b%' )"},
        {Montar({u"nome", cfContem, TNulo{}}), "( F.NOME LIKE '' )", "a sum with null is null"},
        {Montar({u"n", cfBetween, 5}), "( F.N BETWEEN 5 AND 5 )", "one value is both limits"},
        {Montar({u"n", cfBetween, TLista{u"a'", u"b"}, true}), "( F.N BETWEEN 'a''' AND 'b' )"},
        {Montar({u"n", cfNenhum, 1}), "", "no condition"},
        {Montar({u"", cfIgual, 1}), "", "no column"},
        {Montar({u"n", static_cast<TCondicaoFiltro>(99), 1}), "", "not a condition"},
    });
}

TEST(FiltroSql, ListaLongaContaEmOitoBits) {
    for (const std::size_t tamanho : {1U, 44U, 255U, 256U, 257U, 300U, 512U, 513U}) {
        TLista itens;
        for (std::size_t i = 0; i < tamanho; ++i) itens.emplace_back(static_cast<int>(i));
        std::string esperado = "( F.C IN (0";
        for (std::size_t i = 1; i < (tamanho - 1) % 256 + 1; ++i) esperado += ',' + std::to_string(i);
        EXPECT_EQ(Montar({u"c", cfIn, itens}), esperado + " ) )") << tamanho;
    }
}

TEST(FiltroSql, Recusas) {
    const auto recusar = [](const TFolha& AFolha) {
        return Testes::MensagemDe<Exception>([&] { ADD_FAILURE() << Montar(AFolha); });
    };
    constexpr const char* CIn = "Erro na geração do SQL com cláusula IN ou NOT IN.";
    constexpr const char* CConversao = "Não foi possível converter a variante do tipo ";
    Testes::Conferir<std::string>({
        {recusar({u"c", cfIn, TLista{1, TLista{2}}, true}), CIn, "an element is an array"},
        {recusar({u"c", cfNotIn, TLista{}}), CIn, "the last of no elements is number 255, which is missing"},
        {recusar({u"c", cfBetween, TLista{1, 2, 3}}), "Número de parâmetros incorreto para a pesquisa com BETWEEN."},
        {recusar({u"c", cfIgual, TLista{1}}), std::string(CConversao) + "vetor para o tipo texto."},
        {recusar({u"c", cfContem, 5}), std::string(CConversao) + "texto para o tipo número.",
         "a text and a number are added as numbers, and % is none"},
        {recusar({u"c", cfTerminaCom, TLista{}}), std::string(CConversao) + "vetor para o tipo número."},
    });
}

TEST(FiltroSql, ExigirValorRecusaOQueNuncaFoiDado) {
    for (int condicao = cfIgual; condicao <= cfDiferente; ++condicao) {
        SCOPED_TRACE(condicao);
        TFiltro raiz(ofAnd);
        TFiltro& folha = raiz.Add(ofAnd).Add(ofAnd);
        Preencher(folha, {u"nome", static_cast<TCondicaoFiltro>(condicao)});
        EXPECT_NO_THROW(raiz.BuscarSQL());
        raiz.SetExigirValor(true);
        const bool semValor = condicao == cfIsNull || condicao == cfIsNotNull;
        const auto montar = [&] { return Testes::MensagemDe<Exception>([&] { raiz.BuscarSQLWhere(); }); };
        if (semValor)
            EXPECT_NO_THROW(raiz.BuscarSQL());
        else
            EXPECT_EQ(montar(), "A condição sobre f.nome não tem valor.");
        EXPECT_EQ(raiz.BuscarSQL({u"outra"}), u"") << "a condition that is left out needs none";
        for (const Variant& valor : {Variant(TNulo{}), Variant(u"")}) {
            folha.SetValor(valor);
            EXPECT_NO_THROW(raiz.BuscarSQL());
        }
    }
}

TEST(FiltroSql, GruposETabelas) {
    TFiltro raiz(ofAnd);
    EXPECT_EQ(raiz.BuscarSQLWhere(), u"") << "no WHERE without a condition";
    Preencher(raiz, {u"velho", cfIgual, 1});
    raiz.SetOperador(ofOr);
    Preencher(raiz.Add(ofAnd), {u"a", cfIgual, 1}, u"g");
    EXPECT_TRUE(raiz.GetTabela().empty() && raiz.GetCampo().empty() && raiz.GetCondicao() == cfNenhum &&
                raiz.GetValor() == Variant())
        << "the first child makes a group of the node";
    TFiltro& grupo = raiz.Add(ofAnd);
    Preencher(grupo.Add(ofOr), {u"b", cfIgual, 2}, u"F");
    Preencher(grupo.Add(ofOr), {u"c", cfIgual, 3}, u"g");
    Preencher(grupo.Add(ofOr), {u"d", cfIgual, 4}, u"ção");
    raiz.Add(ofAnd).Add(ofAnd);

    EXPECT_EQ(raiz.BuscarSQLWhere(), u" WHERE ( ( G.A = 1 ) OR ( ( F.B = 2 ) AND ( G.C = 3 ) AND ( ÇÃO.D = 4 ) ) )");
    EXPECT_EQ(raiz.BuscarSQLAnd({u"f"}), u" AND ( ( ( F.B = 2 ) ) )") << "no word in front of the first one left";
    EXPECT_EQ(raiz.BuscarSQLOr({u"x", u"F", u"ÇÃO", u"a"}), u" OR ( ( ( F.B = 2 ) AND ( ÇÃO.D = 4 ) ) )");
    EXPECT_EQ(raiz.BuscarSQL({u"fg", u""}), u"");
    EXPECT_EQ(raiz.BuscarSQLOr({u"fg"}), u"");
}

// The text as its description tells it, in recursion and with copies.
std::u16string MontarDevagar(const TFiltro& ANo, const std::vector<std::u16string>& ATabelas) {
    if (ANo.GetCount() == 0) {
        bool quer = ATabelas.empty();
        for (const auto& tabela : ATabelas) quer |= MaiusculaDe(tabela) == MaiusculaDe(ANo.GetTabela());
        return quer ? ANo.BuscarSQL() : u"";
    }
    std::u16string soma = MontarDevagar(ANo.GetItem(0), ATabelas);
    for (int i = 1; i < ANo.GetCount(); ++i) {
        const std::u16string texto = MontarDevagar(ANo.GetItem(i), ATabelas);
        if (texto.empty()) continue;
        if (!soma.empty()) soma += ANo.BuscarOperadorStr();
        soma += texto;
    }
    return soma.empty() ? u"" : u"( " + soma + u" )";
}

// What a copy holds, as its description tells it: groups met on the way drop what was copied before.
void ListarCopiadas(const TFiltro& AOrigem, std::vector<const TFiltro*>& ACopiadas) {
    ACopiadas.clear();
    for (int i = 0; i < AOrigem.GetCount(); ++i) {
        const TFiltro& item = AOrigem.GetItem(i);
        if (item.GetCount() > 0)
            ListarCopiadas(item, ACopiadas);
        else
            ACopiadas.push_back(&item);
    }
}

void Sortear(TFiltro& ANo, std::mt19937_64& AGerador, int ANivel) {
    static constexpr std::u16string_view CTabelas[] = {u"f", u"G", u"h", u""};
    if (ANivel == 0 || AGerador() % 3 == 0) {
        Preencher(ANo,
                  {u"x", static_cast<TCondicaoFiltro>(AGerador() % (cfDiferente + 1)), u"v'", AGerador() % 2 == 0,
                   AGerador() % 2 == 0},
                  CTabelas[AGerador() % 4]);
        ANo.SetOwner(&ANo);
        return;
    }
    for (auto filhos = AGerador() % 4; filhos > 0; --filhos)
        Sortear(ANo.Add(AGerador() % 2 ? ofAnd : ofOr), AGerador, ANivel - 1);
}

TEST(FiltroSql, ArvoresAoAcaso) {
    Testes::TAcaso gerador;
    for (int i = 0; i < 2000; ++i) {
        TFiltro arvore(gerador() % 2 ? ofAnd : ofOr);
        Sortear(arvore, gerador, static_cast<int>(gerador() % 6));
        for (const std::vector<std::u16string>& tabelas :
             {std::vector<std::u16string>{}, {u"F"}, {u"g", u"H"}, {u"nenhuma"}})
            ASSERT_EQ(arvore.BuscarSQL(tabelas), MontarDevagar(arvore, tabelas));

        TFiltro copia(ofAnd);
        Preencher(copia.Add(ofAnd), {u"some", cfIgual, 1});
        copia.Assign(arvore);
        std::vector<const TFiltro*> esperadas;
        ListarCopiadas(arvore, esperadas);
        ASSERT_EQ(copia.GetCount(), std::ssize(esperadas));
        for (int k = 0; k < copia.GetCount(); ++k) {
            const auto retratar = [](const TFiltro& A) {
                return std::tuple(A.BuscarSQL(), A.GetOperador(), A.GetOwner(), A.GetCount());
            };
            EXPECT_EQ(retratar(copia.GetItem(k)), retratar(*esperadas[static_cast<std::size_t>(k)]));
        }
    }
}

TEST(FiltroSql, CopiaAchata) {
    TFiltro origem(ofAnd);
    const auto por = [](TFiltro& AGrupo, std::u16string_view ACampo) {
        Preencher(AGrupo.Add(ofAnd), {ACampo, cfIsNull, {}, false, true});
    };
    por(origem, u"c");
    TFiltro& grupo = origem.Add(ofOr);
    por(grupo, u"d");
    por(grupo, u"e");
    por(origem, u"f");
    TFiltro copia(ofOr);
    copia.Assign(origem);
    EXPECT_EQ(copia.BuscarSQL(), u"( ( F.D IS NULL  ) OR ( F.E IS NULL  ) OR ( F.F IS NULL  ) )");
    copia.GetItem(0).SetCondicao(cfIsNotNull);
    copia.GetItem(0).SetCondicao(cfIgual);
    EXPECT_FALSE(copia.GetItem(0).GetUsarUpperCase()) << "a null test answered false when it was copied";

    struct TOutraLista : TListaDeObjetos {};
    copia.Assign(TOutraLista());
    EXPECT_EQ(copia.GetCount(), 3) << "a list of another kind is ignored";
    origem.Assign(origem.GetItem(1));
    EXPECT_EQ(origem.BuscarSQL(), u"( ( F.D IS NULL  ) AND ( F.E IS NULL  ) )") << "from its own child";
    origem.GetItem(1).Assign(origem);
    EXPECT_EQ(origem.GetItem(1).GetCount(), 0) << "from its own parent: with its first copy it became a group of it";
    origem.Assign(origem);
    EXPECT_EQ(origem.GetCount(), 0) << "from itself: cleared first";
}

// A node was once made in memory of the library's own, which knew no other form of new.
TEST(FiltroSql, NosSaoObjetosQueSeTrocam) {
    struct TMaior : TFiltro {
        using TFiltro::TFiltro;
        std::u16string Anotacao = u"um texto do programa que não cabe no próprio objeto";
    };
    const std::unique_ptr<TFiltro> raiz(new (std::nothrow) TFiltro(ofAnd));
    ASSERT_TRUE(raiz);
    Preencher(raiz->Add(ofAnd), {u"a", cfIgual, 1});
    raiz->SetItem(0, std::make_unique<TMaior>(ofOr));
    Preencher(raiz->GetItem(0).Add(ofAnd), {u"b", cfIgual, 2});
    EXPECT_EQ(raiz->BuscarSQL(), u"( ( ( F.B = 2 ) ) )");
    EXPECT_THROW(raiz->SetItem(0, nullptr), EListError);
    EXPECT_THROW(raiz->GetItem(1), EListError);
    EXPECT_THROW(raiz->GetItem(-1), EListError);
    raiz->Clear();
    EXPECT_EQ(raiz->GetCount(), 0);
}

// Any recursion over the depth would exhaust the stack here.
TEST(FiltroSql, ArvoresFundasELargas) {
    constexpr int CProfundidade = 300'000;
    constexpr int CFolhas = 100'000;
    TFiltro funda(ofAnd);
    TFiltro* no = &funda;
    for (int i = 0; i < CProfundidade; ++i) {
        no = &no->Add(ofOr);
        if (i % 3 == 0) Preencher(no->Add(ofAnd), {u"a", cfIgual, 1}, i % 2 ? u"f" : u"g");
    }
    Preencher(no->Add(ofAnd), {u"z", cfIsNull});
    const std::u16string texto = funda.BuscarSQL();
    EXPECT_EQ(std::count(texto.begin(), texto.end(), u'('), std::count(texto.begin(), texto.end(), u')'));
    EXPECT_TRUE(funda.BuscarSQL({u"x"}).empty());
    TFiltro copia(ofAnd);
    copia.Assign(funda);
    EXPECT_EQ(copia.BuscarSQL(), u"( ( F.Z IS NULL  ) )") << "the deepest group was met last";
    funda.Clear();

    TFiltro larga(ofAnd);
    for (int i = 0; i < CFolhas; ++i) Preencher(larga.Add(ofAnd), {u"a", cfIgual, 1});
    EXPECT_EQ(larga.BuscarSQL().size(), 4 + CFolhas * std::size_t{11} + (CFolhas - 1) * std::size_t{5});
}

}  // namespace
}  // namespace OryUtils
