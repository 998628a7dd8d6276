#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/sql/interno/CondicaoSql.hpp"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace OryUtils {
namespace {

constexpr std::u16string_view CE = u" AND ";
constexpr std::u16string_view COu = u" OR ";
constexpr std::u16string_view COnde = u" WHERE ";

constexpr std::u16string_view BuscarPalavra(TOperadorFiltro AOperador) { return AOperador == ofAnd ? CE : COu; }

/// The tables whose conditions are wanted, case ignored. An empty list wants all.
class TTabelas {
public:
    explicit TTabelas(const std::vector<std::u16string>& ATabelas) {
        for (const std::u16string& tabela : ATabelas) FNomes.insert(MinusculaDe(tabela));
    }
    bool Quer(std::u16string_view ATabela) const { return FNomes.empty() || FNomes.contains(MinusculaDe(ATabela)); }

private:
    std::set<std::u16string> FNomes{};
};

/// A group whose children are being written.
struct TGrupo {
    const TOryUtilsFiltroSql* No;
    std::size_t Antes;   // length of the text before the group and the word that joins it
    std::size_t Inicio;  // length where its first condition starts
    int Proximo = 0;
};

/// Appends the text of the tree to ASaida; nothing when no condition is left.
void AnexarArvore(std::u16string& ASaida, const TOryUtilsFiltroSql& ARaiz, const TTabelas& ATabelas) {
    std::vector<TGrupo> abertos;
    const auto escrever = [&](const TOryUtilsFiltroSql& ANo, std::u16string_view AJuncao) {
        if (ANo.GetCount() > 0) {
            const std::size_t antes = ASaida.size();
            ASaida.append(AJuncao).append(u"( ");
            abertos.push_back({&ANo, antes, ASaida.size()});
        } else if (Interno::EstahCompleta(ANo) && ATabelas.Quer(ANo.GetTabela())) {
            if (ARaiz.GetExigirValor() && Interno::FaltaValor(ANo))
                throw Exception(u"A condição sobre " + ANo.GetTabela() + u"." + ANo.GetCampo() + u" não tem valor.");
            Interno::AnexarCondicao(ASaida.append(AJuncao), ANo);
        }
    };
    escrever(ARaiz, u"");
    while (!abertos.empty()) {
        TGrupo& grupo = abertos.back();
        const bool vazio = ASaida.size() == grupo.Inicio;
        if (grupo.Proximo < grupo.No->GetCount()) {
            const TOryUtilsFiltroSql& filho = grupo.No->GetItem(grupo.Proximo++);
            escrever(filho, vazio ? u"" : BuscarPalavra(grupo.No->GetOperador()));
            continue;
        }
        if (vazio)
            ASaida.resize(grupo.Antes);
        else
            ASaida += u" )";
        abertos.pop_back();
    }
}

std::u16string MontarSQL(const TOryUtilsFiltroSql& ARaiz, const std::vector<std::u16string>& ATabelas,
                         std::u16string_view APalavra) {
    std::u16string saida(APalavra);
    AnexarArvore(saida, ARaiz, TTabelas(ATabelas));
    if (saida.size() == APalavra.size()) saida.clear();
    return saida;
}

}  // namespace

TOryUtilsFiltroSql::TOryUtilsFiltroSql(TOperadorFiltro AOperador) : FOperador(AOperador) {}

TOryUtilsFiltroSql::~TOryUtilsFiltroSql() { TOryUtilsFiltroSql::Clear(); }

TOryUtilsFiltroSql& TOryUtilsFiltroSql::Add(TOperadorFiltro AOperador) {
    FItens.push_back(std::make_unique<TOryUtilsFiltroSql>(AOperador));
    FTabela.clear();
    FCampo.clear();
    FCondicao = cfNenhum;
    FValor = Variant();
    return GetItem(GetCount() - 1);
}

void TOryUtilsFiltroSql::SetItem(int AIndice, std::unique_ptr<TOryUtilsFiltroSql> AValor) {
    std::unique_ptr<TObjeto>& lugar = FItens[ConferirIndice(AIndice)];
    if (!AValor) throw EListError(u"O item da lista não pode ser nulo.");
    lugar = std::move(AValor);
}

void TOryUtilsFiltroSql::Clear() {
    // Without recursion, which a deep tree would exhaust: each node gives its children away before it is freed.
    auto pendentes = std::exchange(FItens, {});
    while (!pendentes.empty()) {
        const std::unique_ptr<TObjeto> no = std::move(pendentes.back());
        pendentes.pop_back();
        auto& filhos = static_cast<TOryUtilsFiltroSql&>(*no).FItens;
        std::move(filhos.begin(), filhos.end(), std::back_inserter(pendentes));
        filhos.clear();
    }
}

void TOryUtilsFiltroSql::CopiarCondicao(const TOryUtilsFiltroSql& ADe) {
    FCampo = ADe.FCampo;
    FCondicao = ADe.FCondicao;
    FOperador = ADe.FOperador;
    FOwner = ADe.FOwner;
    FQuoteStr = ADe.FQuoteStr;
    FTabela = ADe.FTabela;
    FUsarUpperCase = ADe.GetUsarUpperCase();
    FValor = ADe.FValor;
}

void TOryUtilsFiltroSql::Assign(const TListaDeObjetos& ASource) {
    const auto* origem = dynamic_cast<const TOryUtilsFiltroSql*>(&ASource);
    if (!origem) return;

    // ASource may be one of the present children, so they are freed only after everything is copied.
    TOryUtilsFiltroSql antigos(FOperador);
    antigos.FItens = std::exchange(FItens, {});
    struct TPasso {
        const TOryUtilsFiltroSql* No;
        int Proximo = 0;
    };
    std::vector<TPasso> caminho{{origem}};
    Clear();
    while (!caminho.empty()) {
        TPasso& passo = caminho.back();
        if (passo.Proximo == passo.No->GetCount()) {
            caminho.pop_back();
            continue;
        }
        const TOryUtilsFiltroSql& item = passo.No->GetItem(passo.Proximo++);
        if (item.GetCount() == 0) {
            Add(item.GetOperador()).CopiarCondicao(item);
            continue;
        }
        Clear();
        if (&item != this) caminho.push_back({&item});
    }
}

std::u16string TOryUtilsFiltroSql::BuscarCondicaoStr() const {
    return std::u16string(Interno::BuscarPalavra(FCondicao));
}

std::u16string TOryUtilsFiltroSql::BuscarOperadorStr() const { return std::u16string(BuscarPalavra(FOperador)); }

std::u16string TOryUtilsFiltroSql::BuscarSQL(const std::vector<std::u16string>& ATabelas) const {
    return MontarSQL(*this, ATabelas, u"");
}
std::u16string TOryUtilsFiltroSql::BuscarSQL() const { return BuscarSQL({}); }

std::u16string TOryUtilsFiltroSql::BuscarSQLAnd(const std::vector<std::u16string>& ATabelas) const {
    return MontarSQL(*this, ATabelas, CE);
}
std::u16string TOryUtilsFiltroSql::BuscarSQLAnd() const { return BuscarSQLAnd({}); }

std::u16string TOryUtilsFiltroSql::BuscarSQLOr(const std::vector<std::u16string>& ATabelas) const {
    return MontarSQL(*this, ATabelas, COu);
}
std::u16string TOryUtilsFiltroSql::BuscarSQLOr() const { return BuscarSQLOr({}); }

std::u16string TOryUtilsFiltroSql::BuscarSQLWhere(const std::vector<std::u16string>& ATabelas) const {
    return MontarSQL(*this, ATabelas, COnde);
}
std::u16string TOryUtilsFiltroSql::BuscarSQLWhere() const { return BuscarSQLWhere({}); }

}  // namespace OryUtils
