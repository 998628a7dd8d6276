#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/ListaDeObjetos.hpp"
#include "oryutils/runtime/Variante.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// How a group joins its conditions.
enum TOperadorFiltro : std::uint8_t { ofAnd, ofOr };

/// What a condition compares. The database must know STARTING WITH and UPPER.
enum TCondicaoFiltro : std::uint8_t {
    cfNenhum,
    cfIgual,
    cfMaior,
    cfMaiorIgual,
    cfMenor,
    cfMenorIgual,
    cfIn,
    cfNotIn,
    cfIsNull,
    cfIsNotNull,
    cfIniciaCom,
    cfTerminaCom,
    cfContem,
    cfBetween,
    cfDiferente
};

/// The search condition of a SQL statement, as a tree: a node without children is one condition on one column, a node
/// with children joins them in parentheses. The root frees the whole tree. Trees of any depth and width are built,
/// copied and freed without recursion, and the text costs time linear in the tree.
///
///   TOryUtilsFiltroSql filtro(ofAnd);
///   TOryUtilsFiltroSql& nome = filtro.Add(ofAnd);
///   nome.SetTabela(u"f"), nome.SetCampo(u"nome"), nome.SetCondicao(cfIniciaCom), nome.SetValor(u"Ana");
///   TOryUtilsFiltroSql& filial = filtro.Add(ofAnd);
///   filial.SetTabela(u"f"), filial.SetCampo(u"filial"), filial.SetCondicao(cfIgual), filial.SetValor(3);
///   sql += filtro.BuscarSQLWhere();  // " WHERE ( ( F.NOME STARTING WITH 'Ana' ) AND ( F.FILIAL = 3 ) )"
///
/// A quoted value (QuoteStr, and always in cfIniciaCom, cfTerminaCom and cfContem) cannot leave its quotes, whatever it
/// holds. Tabela, Campo and a Valor without QuoteStr go into the statement as they stand, so they must come from the
/// program, never from its user. In cfTerminaCom and cfContem a "%" or "_" inside the value is still a wildcard of
/// LIKE.
class ORY_API TOryUtilsFiltroSql : public TListaDeObjetos {
public:
    /// An empty node: no condition, Valor unassigned. AOperador joins the children that it may get.
    explicit TOryUtilsFiltroSql(TOperadorFiltro AOperador);
    ~TOryUtilsFiltroSql() override;

    /// Appends a new child and answers it, to be filled in or to get children of its own. From now on this node is a
    /// group: its Tabela and Campo become empty, its Condicao cfNenhum, its Valor unassigned. AOperador is how the
    /// child joins its own children.
    TOryUtilsFiltroSql& Add(TOperadorFiltro AOperador);
    /// The child number AIndice, counted from 0. Raises EListError when there is none.
    TOryUtilsFiltroSql& GetItem(int AIndice) const {
        // Only Add and SetItem fill the list.
        return static_cast<TOryUtilsFiltroSql&>(*FItens[ConferirIndice(AIndice)]);
    }
    /// Frees the child number AIndice and puts AValor in its place. Raises EListError when there is no such child, and
    /// when AValor is null.
    void SetItem(int AIndice, std::unique_ptr<TOryUtilsFiltroSql> AValor);
    /// Frees the children.
    void Clear() override;

    /// Frees the present children and copies the conditions of ASource, in their order and without the groups around
    /// them. A group drops everything that was copied before it: from ((a, b), c, (d, e), f) come d, e, f. A source
    /// that is no TOryUtilsFiltroSql is ignored. Null tests are copied with UsarUpperCase false, as they answer it.
    void Assign(const TListaDeObjetos& ASource);

    const std::u16string& GetCampo() const noexcept { return FCampo; }
    void SetCampo(std::u16string_view AValor) { FCampo = AValor; }
    TCondicaoFiltro GetCondicao() const noexcept { return FCondicao; }
    void SetCondicao(TCondicaoFiltro AValor) noexcept { FCondicao = AValor; }
    TOperadorFiltro GetOperador() const noexcept { return FOperador; }
    void SetOperador(TOperadorFiltro AValor) noexcept { FOperador = AValor; }
    /// A node of the caller's choice. The filter neither frees nor reads it.
    TOryUtilsFiltroSql* GetOwner() const noexcept { return FOwner; }
    void SetOwner(TOryUtilsFiltroSql* AValor) noexcept { FOwner = AValor; }
    /// Whether the value is written between apostrophes, as a text.
    bool GetQuoteStr() const noexcept { return FQuoteStr; }
    void SetQuoteStr(bool AValor) noexcept { FQuoteStr = AValor; }
    /// The alias of the table.
    const std::u16string& GetTabela() const noexcept { return FTabela; }
    void SetTabela(std::u16string_view AValor) { FTabela = AValor; }
    /// Whether the comparison ignores case, by UPPER. Always false for cfIsNull and cfIsNotNull.
    bool GetUsarUpperCase() const noexcept {
        return FUsarUpperCase && FCondicao != cfIsNull && FCondicao != cfIsNotNull;
    }
    void SetUsarUpperCase(bool AValor) noexcept { FUsarUpperCase = AValor; }
    /// One value, or an array of values for cfIn, cfNotIn and cfBetween. Its text is VarianteParaTexto's: numbers and
    /// dates are written as the process-wide formats say, which a database may not read ("12,5"); give those as text.
    const Variant& GetValor() const noexcept { return FValor; }
    void SetValor(Variant AValor) noexcept { FValor = std::move(AValor); }

    /// Whether the BuscarSQL family of this node refuses a condition whose Valor was never given, anywhere below it:
    /// Exception "A condição sobre f.nome não tem valor.". False at first: cfContem then finds every row, LIKE '%%'.
    /// A null or an empty text is a value. Assign does not copy this property.
    bool GetExigirValor() const noexcept { return FExigirValor; }
    void SetExigirValor(bool AValor) noexcept { FExigirValor = AValor; }

    /// "=", "STARTING WITH", ...; empty for cfNenhum.
    std::u16string BuscarCondicaoStr() const;
    /// " AND " or " OR ".
    std::u16string BuscarOperadorStr() const;

    /// The text of the condition, "( F.NOME = 'Ana' )" or, of a group, "( ( F.A = 1 ) AND ( F.B = 2 ) )".
    /// A condition without a table, a column or a kind is left out. So is a condition on a table that ATabelas does not
    /// list; case is ignored, and an empty list allows every table. The word that joins a condition goes with it. The
    /// text is empty when no condition is left.
    ///
    /// cfIniciaCom compares with the value as given, also where UsarUpperCase turns the column to upper case. cfIn and
    /// cfNotIn count elements in 8 bits: an array of N gives its first ((N - 1) mod 256) + 1, so 300 give 44. cfBetween
    /// takes one value as both limits.
    /// Raises Exception "Erro na geração do SQL com cláusula IN ou NOT IN." for an array that is empty or holds an
    /// array (want of memory stays std::bad_alloc), "Número de parâmetros incorreto para a pesquisa com BETWEEN." for
    /// an array of any size but two, and EVariantTypeCastError for an array in other conditions. cfTerminaCom and
    /// cfContem search u"%" + Valor, which raises EVariantTypeCastError unless Valor is a text, null (which makes the
    /// whole text empty) or unassigned.
    std::u16string BuscarSQL(const std::vector<std::u16string>& ATabelas) const;
    std::u16string BuscarSQL() const;

    /// As BuscarSQL after " AND ", " OR " or " WHERE ", to be appended to a statement; empty when that is empty.
    std::u16string BuscarSQLAnd(const std::vector<std::u16string>& ATabelas) const;
    std::u16string BuscarSQLAnd() const;
    std::u16string BuscarSQLOr(const std::vector<std::u16string>& ATabelas) const;
    std::u16string BuscarSQLOr() const;
    std::u16string BuscarSQLWhere(const std::vector<std::u16string>& ATabelas) const;
    std::u16string BuscarSQLWhere() const;

private:
    void CopiarCondicao(const TOryUtilsFiltroSql& ADe);

    TOryUtilsFiltroSql* FOwner = nullptr;
    TCondicaoFiltro FCondicao = cfNenhum;
    TOperadorFiltro FOperador;
    bool FQuoteStr = false;
    bool FUsarUpperCase = false;
    bool FExigirValor = false;
    std::u16string FTabela{};
    std::u16string FCampo{};
    Variant FValor{};
};

}  // namespace OryUtils
