#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/sql/interno/BlocoDeNos.hpp"
#include "oryutils/sql/interno/CondicaoSql.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

using Interno::TPedacoSql;
using Interno::TTextoSql;

constexpr TPedacoSql CE(u" AND ");
constexpr TPedacoSql COu(u" OR ");
constexpr TPedacoSql COnde(u" WHERE ");
constexpr TPedacoSql CNada(u"");
constexpr TPedacoSql CAbre(u"( ");
constexpr TPedacoSql CFecha(u" )");

constexpr const TPedacoSql& BuscarPalavra(TOperadorFiltro AOperador) { return AOperador == ofAnd ? CE : COu; }

/// The tables that are wanted, found case ignored in time that hardly grows with their number.
class TTabelas {
public:
    explicit TTabelas(const std::vector<std::u16string>& ATabelas) {
        FNomes.reserve(ATabelas.size());
        for (const std::u16string& tabela : ATabelas) FNomes.push_back(MinusculaDe(tabela));
        std::sort(FNomes.begin(), FNomes.end());
    }
    bool Quer(std::u16string_view ATabela) const {
        if (FNomes.empty()) return true;
        const auto achado =
            std::lower_bound(FNomes.begin(), FNomes.end(), ATabela, [](const std::u16string& A, std::u16string_view B) {
                return std::lexicographical_compare(A.begin(), A.end(), B.begin(), B.end(), [](char16_t C, char16_t D) {
                    return MinusculaDe(C) < MinusculaDe(D);
                });
            });
        return achado != FNomes.end() && IguaisIgnorandoCaixa(*achado, ATabela);
    }

private:
    std::vector<std::u16string> FNomes{};
};

/// A group whose children are being written.
struct TGrupo {
    const TOryUtilsFiltroSql* No;
    std::size_t Antes;   // length of the text before the group and the word that joins it
    std::size_t Inicio;  // length where its first condition starts
    int Proximo = 0;
};

/// Appends the text of the tree to ASaida; nothing when no condition is left.
void AnexarArvore(TTextoSql& ASaida, const TOryUtilsFiltroSql& ARaiz, const TTabelas& ATabelas) {
    std::vector<TGrupo> abertos;
    const auto escrever = [&](const TOryUtilsFiltroSql& ANo, const TPedacoSql& AJuncao) {
        if (ANo.GetCount() > 0) {
            const std::size_t antes = ASaida.GetTamanho();
            ASaida.Anexar(AJuncao);
            ASaida.Anexar(CAbre);
            abertos.push_back({&ANo, antes, ASaida.GetTamanho()});
        } else if (Interno::EstahCompleta(ANo) && ATabelas.Quer(ANo.GetTabela())) {
            Interno::AnexarCondicao(ASaida, AJuncao, ANo);
        }
    };
    escrever(ARaiz, CNada);
    while (!abertos.empty()) {
        TGrupo& grupo = abertos.back();
        const bool vazio = ASaida.GetTamanho() == grupo.Inicio;
        if (grupo.Proximo < grupo.No->GetCount()) {
            const TOryUtilsFiltroSql& filho = grupo.No->GetItem(grupo.Proximo++);
            escrever(filho, vazio ? CNada : BuscarPalavra(grupo.No->GetOperador()));
            continue;
        }
        if (vazio)
            ASaida.Recuar(grupo.Antes);
        else
            ASaida.Anexar(CFecha);
        abertos.pop_back();
    }
}

std::u16string MontarSQL(const TOryUtilsFiltroSql& ARaiz, const std::vector<std::u16string>& ATabelas,
                         const TPedacoSql& APalavra) {
    constexpr std::size_t CCondicaoComum = 40;
    TTextoSql saida(ATabelas.empty() ? static_cast<std::size_t>(ARaiz.GetCount() + 1) * CCondicaoComum : 0);
    saida.Anexar(APalavra);
    const std::size_t inicio = saida.GetTamanho();
    AnexarArvore(saida, ARaiz, TTabelas(ATabelas));
    if (saida.GetTamanho() == inicio) saida.Recuar(0);
    return std::move(saida).Terminar();
}

}  // namespace

TOryUtilsFiltroSql::TOryUtilsFiltroSql(TOperadorFiltro AOperador) : FOperador(AOperador) {}

TOryUtilsFiltroSql::~TOryUtilsFiltroSql() {
    TOryUtilsFiltroSql::Clear();
    Interno::LargarBloco(FBloco);
}

void* TOryUtilsFiltroSql::operator new(std::size_t ATamanho) { return Interno::TomarLugarAvulso(ATamanho); }

void TOryUtilsFiltroSql::operator delete(void* ALugar) noexcept { Interno::DevolverLugar(ALugar); }

void* TOryUtilsFiltroSql::operator new(std::size_t ATamanho, TOryUtilsFiltroSql& AGrupo) {
    return Interno::TomarLugar(AGrupo.FBloco, ATamanho, AGrupo.FItens.size());
}

void TOryUtilsFiltroSql::operator delete(void* ALugar, TOryUtilsFiltroSql&) noexcept { Interno::DevolverLugar(ALugar); }

TOryUtilsFiltroSql& TOryUtilsFiltroSql::Add(TOperadorFiltro AOperador) {
    auto* filho = new (*this) TOryUtilsFiltroSql(AOperador);
    FItens.push_back(std::unique_ptr<TObjeto>(filho));
    FTabela.clear();
    FCampo.clear();
    FCondicao = cfNenhum;
    FValor = Variant();
    return *filho;
}

void TOryUtilsFiltroSql::SetItem(int AIndice, std::unique_ptr<TOryUtilsFiltroSql> AValor) {
    std::unique_ptr<TObjeto>& lugar = FItens[ConferirIndice(AIndice)];
    if (!AValor) throw EListError(u"O item da lista não pode ser nulo.");
    lugar = std::move(AValor);
}

void TOryUtilsFiltroSql::Clear() {
    if (FItens.empty()) return;
    // Without recursion and without memory of its own: a node waits in the place of its first child while its children
    // are freed, and keeps the rest of the list that was being freed before. It is then the last one to be taken.
    auto lista = std::exchange(FItens, {});
    while (!lista.empty()) {
        std::unique_ptr<TObjeto> objeto = std::move(lista.back());
        lista.pop_back();
        while (true) {
            auto& filhos = static_cast<TOryUtilsFiltroSql&>(*objeto).FItens;
            const bool ultimo = lista.empty();
            if (!filhos.empty()) std::swap(lista, filhos);
            if (ultimo || filhos.empty()) break;
            std::swap(lista.front(), objeto);
        }
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

    // ASource may be below this node: the present children live until everything is copied.
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

std::u16string TOryUtilsFiltroSql::BuscarOperadorStr() const {
    return std::u16string(BuscarPalavra(FOperador).GetTexto());
}

std::u16string TOryUtilsFiltroSql::BuscarSQL(const std::vector<std::u16string>& ATabelas) const {
    return MontarSQL(*this, ATabelas, CNada);
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
