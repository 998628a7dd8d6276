// How the time grows with the work: every operation that takes a text or a list, at n, 10n and 100n. Prints lines of
// operation, what grew, n and the nanoseconds of the processor of the fastest of some rounds, separated by
// tabs; the cost of reading the
// arguments and writing the result as JSON, which is linear, is in them.
//   bench_Crescimento [N]     N is 2000 where it is not said
#include "oryutils/changes/UnOryUtilsControleAlteracoes.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "CasosDeCrescimento.hpp"
#include "operations/Operacoes.hpp"
#include "operations/Vinculo.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <malloc.h>
#include <sys/resource.h>

namespace {

using namespace Ory;

std::string Repetir(std::string_view AUnidade, std::size_t ATamanho) {
    std::string texto;
    texto.reserve(ATamanho);
    while (texto.size() + AUnidade.size() <= ATamanho) texto += AUnidade;
    return texto;
}

std::string CrescerTexto(std::string_view AReceita, std::size_t ATamanho) {
    const std::size_t um = AReceita.find('|'), dois = AReceita.rfind('|');
    return std::string(AReceita.substr(1, um - 1)) + Repetir(AReceita.substr(um + 1, dois - um - 1), ATamanho) +
           std::string(AReceita.substr(dois + 1));
}

TJson MontarFiltro(std::size_t AFolhas) {
    TJson folhas = TJson::array();
    for (std::size_t i = 0; i < AFolhas; ++i)
        folhas.push_back({{"tabela", "F"}, {"campo", "NOME"}, {"condicao", 1}, {"valor", "D'Ávila"}, {"quote", true}});
    return {{"operador", 0}, {"filhos", std::move(folhas)}};
}

/// The argument of the table at the size of this run.
TJson Crescer(const TJson& AReceita, std::size_t ATamanho) {
    if (AReceita.is_object() && AReceita.contains("folhas"))
        return MontarFiltro(ATamanho / AReceita["folhas"].get<std::size_t>());
    if (AReceita.is_string()) {
        const auto& texto = AReceita.get_ref<const std::string&>();
        if (texto.starts_with('*')) return CrescerTexto(texto, ATamanho);
        return texto == "%" ? TJson(ATamanho) : AReceita;
    }
    if (!AReceita.is_array() || AReceita.empty() || !AReceita[0].is_string()) return AReceita;
    const auto& receita = AReceita[0].get_ref<const std::string&>();
    TJson lista = TJson::array();
    if (receita.starts_with('#')) {
        for (std::size_t i = 0; i < ATamanho / 10; ++i) lista.push_back(receita.substr(1) + std::to_string(i));
    } else if (receita == "%") {
        for (std::size_t i = 0; i < ATamanho; ++i) lista.push_back(AReceita[1]);
    } else
        return AReceita;
    return lista;
}

/// An argument of that type: short, or the recipe of one that grows; null where nothing of the type can grow.
TJson MontarArgumento(std::string_view ATipo, bool ACresce) {
    if (ATipo == "texto" || ATipo == "variante") return ACresce ? "*|Ação 12,3; d'água |" : "a";
    if (ATipo.starts_with("lista de textos"))
        return ACresce ? TJson::array({"#item com ç "}) : TJson::array({"a", "bc"});
    if (ATipo == "caracteres" || ATipo == "conjunto de caracteres")
        return ACresce ? TJson::array({"%", "-"}) : TJson::array({"-", "."});
    if (ATipo == "lista de inteiros") return ACresce ? TJson::array({"%", 3}) : TJson::array({1, 2});
    if (ATipo == "lista de lógicos") return ACresce ? TJson::array({"%", true}) : TJson::array({true});
    if (ATipo == "filtro") return {{"folhas", 20}};
    if (ACresce) return nullptr;
    if (ATipo == "caractere") return "a";
    if (ATipo == "lógico") return true;
    if (ATipo == "data-hora") return "2024-03-05T10:20:30";
    if (ATipo == "objeto de decimais") return {{"A", 1.5}};
    return 1;
}

/// Nanoseconds of the processor that this process has used, so that a busy machine does not show; those of a command
/// that it has waited for too.
double LerProcessador() {
    double total = 0;
    for (const int quem : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage uso{};
        ::getrusage(quem, &uso);
        for (const timeval& tempo : {uso.ru_utime, uso.ru_stime})
            total += static_cast<double>(tempo.tv_sec) * 1e9 + static_cast<double>(tempo.tv_usec) * 1e3;
    }
    return total;
}

/// The fastest of some rounds of at least a millisecond.
template <typename TTrabalho>
double Cronometrar(TTrabalho ATrabalho) {
    constexpr double CRodada = 1e6;
    double melhor = std::numeric_limits<double>::max();
    int vezes = 1;
    for (int rodada = 0; rodada < 5; ++rodada) {
        const double antes = LerProcessador();
        for (int i = 0; i < vezes; ++i) ATrabalho();
        const double tempo = LerProcessador() - antes;
        melhor = std::min(melhor, tempo / vezes);
        if (tempo >= CRodada || vezes >= 100'000) continue;
        vezes *= tempo < CRodada / 10 ? 10 : 3;
        melhor = std::numeric_limits<double>::max();
        rodada = -1;
    }
    return melhor;
}

template <typename TPreparar>
void Medir(std::string_view ANome, std::string_view AOQue, std::size_t AMenor, TPreparar APreparar) {
    for (std::size_t n = AMenor; n <= AMenor * 100; n *= 10)
        std::printf("%.*s\t%.*s\t%zu\t%.0f\n", static_cast<int>(ANome.size()), ANome.data(),
                    static_cast<int>(AOQue.size()), AOQue.data(), n, Cronometrar(APreparar(n)));
    std::fflush(stdout);
}

void MedirChamada(const TOperacao& AOperacao, std::string_view AOQue, const TJson& AReceita, std::size_t AMenor) {
    Medir(AOperacao.Nome, AOQue, AMenor, [&](std::size_t ATamanho) {
        std::vector<TJson> valores;
        for (const TJson& receita : AReceita) valores.push_back(Crescer(receita, ATamanho));
        return [&AOperacao, valores = std::move(valores)] {
            std::string saida;
            try {
                AOperacao.Invocar({valores}, saida);
            } catch (const OryUtils::Exception&) {  // the refusal of such a text is its answer
            }
        };
    });
}

void MedirOperacao(const TOperacao& AOperacao, std::size_t AMenor) {
    bool naTabela = false;
    for (const TCasoDeCrescimento& caso : CCasosDeCrescimento)
        if (caso.Operacao == AOperacao.Nome) {
            MedirChamada(AOperacao, caso.Argumentos, TJson::parse(caso.Argumentos), AMenor);
            naTabela = true;
        }
    if (naTabela) return;
    for (std::size_t cresce = 0; cresce < AOperacao.Parametros.size(); ++cresce) {
        if (MontarArgumento(AOperacao.Parametros[cresce].Tipo, true).is_null()) continue;
        TJson receita = TJson::array();
        for (std::size_t i = 0; i < AOperacao.Parametros.size(); ++i)
            receita.push_back(MontarArgumento(AOperacao.Parametros[i].Tipo, i == cresce));
        MedirChamada(AOperacao, receita.dump(), receita, AMenor);
    }
}

// What is not called by a single operation.

void MedirLog(std::size_t AMenor) {
    struct TLog : OryUtils::TOryUtilsArquivoLog {
        using TOryUtilsArquivoLog::SalvarArquivoLog;
        using TOryUtilsArquivoLog::TOryUtilsArquivoLog;
    };
    const auto pasta = std::filesystem::temp_directory_path() / "ory_bench_crescimento";
    std::filesystem::create_directories(pasta);
    Medir("TOryUtilsArquivoLog", "n/50 lines added, one save", AMenor, [&](std::size_t n) {
        return [&pasta, n] {
            TLog log((pasta / "log").u16string());
            for (std::size_t i = 0; i < n / 50; ++i)
                log.Adicionar(u"Registro importado do arquivo", OryUtils::clWindowText);
            log.SalvarArquivoLog();
        };
    });
    std::filesystem::remove_all(pasta);
}

void MedirAlteracoes(std::size_t AMenor) {
    Medir("TOryUtilsControleAlteracoes", "n/10 steps", AMenor, [](std::size_t n) {
        return [n] {
            OryUtils::TOryUtilsControleAlteracoes controle(u"9");
            for (std::size_t i = 0; i < n / 10; ++i) controle.Adicionar(u"1", [] {});
            controle.Executar();
        };
    });
}

void MedirFiltroFundo(std::size_t AMenor) {
    Medir("TOryUtilsFiltroSql", "n/20 groups, each in the other", AMenor, [](std::size_t n) {
        return [n] {
            OryUtils::TOryUtilsFiltroSql raiz(OryUtils::ofAnd);
            OryUtils::TOryUtilsFiltroSql* grupo = &raiz;
            for (std::size_t i = 0; i < n / 20; ++i) {
                OryUtils::TOryUtilsFiltroSql& folha = grupo->Add(OryUtils::ofOr);
                folha.SetTabela(u"F");
                folha.SetCampo(u"CODIGO");
                folha.SetCondicao(OryUtils::cfIgual);
                folha.SetValor(1);
                grupo = &grupo->Add(OryUtils::ofAnd);
            }
            static_cast<void>(raiz.BuscarSQLWhere());
        };
    });
}

void MedirComando(std::size_t AMenor) {
    const auto arquivo = std::filesystem::temp_directory_path() / "ory_bench_crescimento.txt";
    Medir("ExecutarComandoComRetorno", "10n bytes of output", AMenor, [&](std::size_t n) {
        std::FILE* saida = std::fopen(arquivo.c_str(), "wb");
        if (!saida) std::abort();
        std::fputs(Repetir("  Interface: 192.168.0.10 --- 0x4\r\n", 10 * n).c_str(), saida);
        std::fclose(saida);
        return [&] {
            std::vector<std::u16string> linhas;
            OryUtils::TOryUtilsSistema::ExecutarComandoComRetorno(u"cat " + arquivo.u16string(), linhas);
        };
    });
    std::filesystem::remove(arquivo);
}

}  // namespace

int main(int AQuantos, char** AArgumentos) {
    const std::size_t menor = AQuantos > 1 ? std::strtoul(AArgumentos[1], nullptr, 10) : 2'000;
    if (menor < 100) return EXIT_FAILURE;
    // Memory once had is kept: pages fresh from the system cost more than the work, from some size on.
    ::mallopt(M_MMAP_THRESHOLD, 32 << 20);
    ::mallopt(M_TRIM_THRESHOLD, 1 << 30);
    PrepararProcesso();
    for (const TCasoDeCrescimento& caso : CCasosDeCrescimento)
        if (!BuscarOperacao(caso.Operacao)) {
            std::fprintf(stderr, "no operation %s\n", std::string(caso.Operacao).c_str());
            return EXIT_FAILURE;
        }
    for (const auto tabela : BuscarOperacoes())
        for (const TOperacao& operacao : tabela) MedirOperacao(operacao, menor);
    MedirLog(menor);
    MedirAlteracoes(menor);
    MedirFiltroFundo(menor);
    MedirComando(menor);
}
