#include "pesquisa/Banco.hpp"

#include "oryutils/runtime/Utf.hpp"

#include <cstring>
#include <memory>
#include <utility>

namespace Exemplos {
namespace {

constexpr unsigned short CDialeto = 3;

/// The status that every function of the client fills in.
class TStatus {
public:
    operator ISC_STATUS*() { return FVetor; }
    void Conferir() {
        if (FVetor[0] != 1 || FVetor[1] == 0) return;
        std::string mensagem;
        char linha[512];
        const ISC_STATUS* posicao = FVetor;
        while (fb_interpret(linha, sizeof linha, &posicao) != 0) {
            if (!mensagem.empty()) mensagem += "; ";
            mensagem += linha;
        }
        throw EBanco(OryUtils::DeUtf8(mensagem));
    }

private:
    ISC_STATUS_ARRAY FVetor{};
};

class TTransacao {
public:
    explicit TTransacao(isc_db_handle& AConexao) {
        TStatus status;
        isc_start_transaction(status, &FTransacao, 1, &AConexao, 0, nullptr);
        status.Conferir();
    }
    TTransacao(const TTransacao&) = delete;
    TTransacao& operator=(const TTransacao&) = delete;
    ~TTransacao() {
        TStatus status;
        if (FTransacao) isc_rollback_transaction(status, &FTransacao);
    }
    isc_tr_handle* Get() { return &FTransacao; }
    void Confirmar() {
        TStatus status;
        isc_commit_transaction(status, &FTransacao);
        status.Conferir();
    }

private:
    isc_tr_handle FTransacao = 0;
};

/// The description of the columns or of the parameters of a statement, with room for AQuantas of them.
class TDescricao {
public:
    explicit TDescricao(short AQuantas)
        : FBytes(new char[XSQLDA_LENGTH(AQuantas)]()), FDescricao(new (FBytes.get()) XSQLDA) {
        FDescricao->version = SQLDA_VERSION1;
        FDescricao->sqln = AQuantas;
    }
    XSQLDA* Get() { return FDescricao; }
    short GetQuantas() const { return FDescricao->sqld; }
    XSQLVAR& operator[](int AIndice) { return FDescricao->sqlvar[AIndice]; }

private:
    std::unique_ptr<char[]> FBytes;
    XSQLDA* FDescricao;
};

class TComando {
public:
    TComando(isc_db_handle& AConexao, TTransacao& ATransacao, std::u16string_view ASql) : FTransacao(ATransacao) {
        const std::string sql = OryUtils::ParaUtf8(ASql);
        if (sql.find('\0') != std::string::npos) throw EBanco(u"O comando SQL tem um caractere de código 0.");
        TStatus status;
        isc_dsql_allocate_statement(status, &AConexao, &FComando);
        status.Conferir();
        isc_dsql_prepare(status, FTransacao.Get(), &FComando, 0, sql.c_str(), CDialeto, nullptr);
        try {
            status.Conferir();
        } catch (...) {
            Liberar();
            throw;
        }
    }
    TComando(const TComando&) = delete;
    TComando& operator=(const TComando&) = delete;
    ~TComando() { Liberar(); }

    /// The columns of the result, or the parameters.
    template <auto ADescrever>
    TDescricao Descrever() {
        TDescricao descricao(1);
        while (true) {
            TStatus status;
            ADescrever(status, &FComando, SQLDA_VERSION1, descricao.Get());
            status.Conferir();
            if (descricao.GetQuantas() <= descricao.Get()->sqln) return descricao;
            descricao = TDescricao(descricao.GetQuantas());
        }
    }
    void Executar(XSQLDA* AParametros) {
        TStatus status;
        isc_dsql_execute(status, FTransacao.Get(), &FComando, SQLDA_VERSION1, AParametros);
        status.Conferir();
    }
    bool Avancar(XSQLDA* AColunas) {
        constexpr ISC_STATUS CFim = 100;
        TStatus status;
        if (isc_dsql_fetch(status, &FComando, SQLDA_VERSION1, AColunas) == CFim) return false;
        status.Conferir();
        return true;
    }

private:
    void Liberar() {
        TStatus status;
        isc_dsql_free_statement(status, &FComando, DSQL_drop);
    }

    TTransacao& FTransacao;
    isc_stmt_handle FComando = 0;
};

/// A buffer for the text of one column; the client converts every kind to it.
struct TColuna {
    std::vector<char> Texto;
    short Nulo = 0;

    void Ligar(XSQLVAR& AVariavel) {
        constexpr short CTextoDeNumero = 64;
        const auto tipo = AVariavel.sqltype & ~1;
        if (tipo != SQL_TEXT && tipo != SQL_VARYING) AVariavel.sqllen = CTextoDeNumero;
        AVariavel.sqltype = SQL_VARYING + 1;
        Texto.resize(static_cast<std::size_t>(AVariavel.sqllen) + sizeof(short));
        AVariavel.sqldata = Texto.data();
        AVariavel.sqlind = &Nulo;
    }
    TCelula Ler() const {
        if (Nulo < 0) return {};
        unsigned short tamanho = 0;
        std::memcpy(&tamanho, Texto.data(), sizeof tamanho);
        return OryUtils::DeUtf8({Texto.data() + sizeof tamanho, tamanho});
    }
};

void Acrescentar(std::string& AParametros, char ACodigo, std::string_view AValor) {
    AParametros += ACodigo;
    AParametros += static_cast<char>(AValor.size());
    AParametros += AValor;
}

/// What both a new and an existing database are opened with.
std::string ParametrosDeConexao() {
    std::string parametros(1, isc_dpb_version1);
    Acrescentar(parametros, isc_dpb_user_name, "SYSDBA");
    Acrescentar(parametros, isc_dpb_lc_ctype, "UTF8");
    return parametros;
}

}  // namespace

TBanco TBanco::Criar(const std::filesystem::path& AArquivo) {
    std::string parametros = ParametrosDeConexao();
    Acrescentar(parametros, isc_dpb_set_db_charset, "UTF8");
    Acrescentar(parametros, isc_dpb_sql_dialect, std::string_view("\3\0\0\0", 4));
    Acrescentar(parametros, isc_dpb_overwrite, std::string_view("\1\0\0\0", 4));
    Acrescentar(parametros, isc_dpb_force_write, std::string_view("\0\0\0\0", 4));
    TStatus status;
    isc_db_handle conexao = 0;
    isc_create_database(status, 0, AArquivo.c_str(), &conexao, static_cast<short>(parametros.size()),
                        parametros.c_str(), 0);
    status.Conferir();
    return TBanco(conexao);
}

TBanco TBanco::Abrir(const std::filesystem::path& AArquivo) {
    const std::string parametros = ParametrosDeConexao();
    TStatus status;
    isc_db_handle conexao = 0;
    isc_attach_database(status, 0, AArquivo.c_str(), &conexao, static_cast<short>(parametros.size()),
                        parametros.c_str());
    status.Conferir();
    return TBanco(conexao);
}

TBanco::~TBanco() {
    TStatus status;
    if (FConexao) isc_detach_database(status, &FConexao);
}

void TBanco::Executar(std::u16string_view ASql) {
    TTransacao transacao(FConexao);
    TComando(FConexao, transacao, ASql).Executar(nullptr);
    transacao.Confirmar();
}

std::vector<TLinha> TBanco::Consultar(std::u16string_view ASql) {
    TTransacao transacao(FConexao);
    std::vector<TLinha> linhas;
    {
        TComando comando(FConexao, transacao, ASql);
        TDescricao descricao = comando.Descrever<&isc_dsql_describe>();
        std::vector<TColuna> colunas(static_cast<std::size_t>(descricao.GetQuantas()));
        for (std::size_t i = 0; i < colunas.size(); ++i) colunas[i].Ligar(descricao[static_cast<int>(i)]);
        comando.Executar(nullptr);
        while (comando.Avancar(descricao.Get())) {
            TLinha& linha = linhas.emplace_back();
            for (const TColuna& coluna : colunas) linha.push_back(coluna.Ler());
        }
    }
    transacao.Confirmar();
    return linhas;
}

void TBanco::ExecutarParaCada(std::u16string_view ASql, const std::vector<TLinha>& ALinhas) {
    TTransacao transacao(FConexao);
    {
        TComando comando(FConexao, transacao, ASql);
        TDescricao descricao = comando.Descrever<&isc_dsql_describe_bind>();
        const auto quantos = static_cast<std::size_t>(descricao.GetQuantas());
        for (const TLinha& linha : ALinhas) {
            std::vector<std::string> textos(quantos);
            std::vector<short> nulos(quantos);
            for (std::size_t i = 0; i < quantos; ++i) {
                const TCelula& celula = linha.at(i);
                nulos[i] = celula ? short{0} : short{-1};
                if (celula) textos[i] = OryUtils::ParaUtf8(*celula);
                XSQLVAR& variavel = descricao[static_cast<int>(i)];
                variavel.sqltype = SQL_TEXT + 1;
                variavel.sqllen = static_cast<short>(textos[i].size());
                variavel.sqldata = textos[i].data();
                variavel.sqlind = &nulos[i];
            }
            comando.Executar(descricao.Get());
        }
    }
    transacao.Confirmar();
}

}  // namespace Exemplos
