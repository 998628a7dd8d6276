#include "oryutils/platform/Registro.hpp"

#include "oryutils/platform/ErroDoSistema.hpp"
#include "oryutils/platform/windows/Windows.hpp"
#include "oryutils/readers/NomesRegistro.hpp"

#include <memory>
#include <utility>

namespace OryUtils::Interno {
namespace {

TErroRegistro De(LSTATUS AErro) { return static_cast<TErroRegistro>(static_cast<std::uint32_t>(AErro)); }

// The predefined handles are 32-bit numbers extended with their sign.
HKEY Alca(TChaveRaiz ARaiz) {
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(static_cast<std::uint32_t>(ARaiz))));
}

bool PossuiNulo(std::u16string_view ANome) { return ANome.find(u'\0') != ANome.npos; }

// Room for the longest name that the system allows, with its terminator.
constexpr std::size_t CMaiorNome = Interno::CMaiorNomeDeValor + 1;

// AEnumerar: the system's call for the name of the item AIndice, which may take up to ATamanho characters.
template <typename TChamada>
TErroRegistro Listar(std::vector<std::u16string>& ANomes, TChamada AEnumerar) {
    ANomes.clear();
    std::u16string nome(CMaiorNome, u'\0');
    for (DWORD indice = 0;; ++indice) {
        DWORD tamanho = static_cast<DWORD>(nome.size());
        const LSTATUS erro = AEnumerar(indice, ParaWide(nome.data()), &tamanho);
        if (erro == ERROR_NO_MORE_ITEMS) return erNenhum;
        if (erro != ERROR_SUCCESS) return De(erro);
        ANomes.emplace_back(nome, 0, tamanho);
    }
}

}  // namespace

struct TChaveRegistro::TDados {
    HKEY Chave = nullptr;

    TDados() = default;
    TDados(const TDados&) = delete;
    TDados& operator=(const TDados&) = delete;
    ~TDados() {
        if (Chave) ::RegCloseKey(Chave);
    }
};

TChaveRegistro::TChaveRegistro() = default;
TChaveRegistro::~TChaveRegistro() = default;
TChaveRegistro::TChaveRegistro(TChaveRegistro&& AOutra) noexcept = default;
TChaveRegistro& TChaveRegistro::operator=(TChaveRegistro&& AOutra) noexcept = default;

TErroRegistro TChaveRegistro::Abrir(TChaveRaiz ARaiz, std::u16string_view ACaminho, std::uint32_t AAcesso,
                                    bool ACriar) {
    const std::u16string caminho = Interno::NormalizarCaminho(ACaminho);
    if (!Interno::EhCaminhoValido(caminho, CProibidosNoWindows)) return erNomeInvalido;
    auto dados = std::make_unique<TDados>();
    const LSTATUS erro = ACriar && !caminho.empty()
                             ? ::RegCreateKeyExW(Alca(ARaiz), ParaWide(caminho), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                                 AAcesso, nullptr, &dados->Chave, nullptr)
                             : ::RegOpenKeyExW(Alca(ARaiz), ParaWide(caminho), 0, AAcesso, &dados->Chave);
    if (erro != ERROR_SUCCESS) return De(erro);
    FDados = std::move(dados);
    return erNenhum;
}

void TChaveRegistro::Fechar() noexcept { FDados.reset(); }
bool TChaveRegistro::EstahAberta() const noexcept { return FDados != nullptr; }

TErroRegistro TChaveRegistro::Ler(std::u16string_view AValor, TDadoRegistro& ADado) const {
    if (!FDados) return erAlcaInvalida;
    if (PossuiNulo(AValor)) return erNaoExiste;
    const std::u16string nome(AValor);
    TDadoRegistro dado;
    // Another program may make the value longer between the two calls.
    while (true) {
        DWORD tipo = 0;
        DWORD tamanho = static_cast<DWORD>(dado.Bytes.size());
        const LSTATUS erro = ::RegQueryValueExW(FDados->Chave, ParaWide(nome), nullptr, &tipo,
                                                reinterpret_cast<BYTE*>(dado.Bytes.data()), &tamanho);
        const bool coube = erro == ERROR_SUCCESS && tamanho <= dado.Bytes.size();
        if (erro != ERROR_SUCCESS && erro != ERROR_MORE_DATA) return De(erro);
        dado.Bytes.resize(tamanho);
        if (!coube) continue;
        dado.Tipo = tipo;
        ADado = std::move(dado);
        return erNenhum;
    }
}

TErroRegistro TChaveRegistro::Gravar(std::u16string_view AValor, const TDadoRegistro& ADado) {
    if (!FDados) return erAlcaInvalida;
    if (!Interno::EhNomeDeValorValido(AValor, CProibidosNoWindows)) return erNomeInvalido;
    // The system may look for a terminator behind a text that has none.
    const std::string bytes = ADado.Bytes + std::string(sizeof(wchar_t), '\0');
    return De(::RegSetValueExW(FDados->Chave, ParaWide(std::u16string(AValor)), 0, ADado.Tipo,
                               reinterpret_cast<const BYTE*>(bytes.data()), static_cast<DWORD>(ADado.Bytes.size())));
}

TErroRegistro TChaveRegistro::ExcluirValor(std::u16string_view AValor) {
    if (!FDados) return erAlcaInvalida;
    if (PossuiNulo(AValor)) return erNaoExiste;
    return De(::RegDeleteValueW(FDados->Chave, ParaWide(std::u16string(AValor))));
}

TErroRegistro TChaveRegistro::ExcluirSubchave(std::u16string_view ASubchave) {
    if (!FDados) return erAlcaInvalida;
    if (!Interno::EhNomeDeSubchaveValido(ASubchave, CProibidosNoWindows)) return erNomeInvalido;
    return De(::RegDeleteTreeW(FDados->Chave, ParaWide(std::u16string(ASubchave))));
}

TErroRegistro TChaveRegistro::ListarSubchaves(std::vector<std::u16string>& ANomes) const {
    if (!FDados) return erAlcaInvalida;
    return Listar(ANomes, [&](DWORD AIndice, wchar_t* ANome, DWORD* ATamanho) {
        return ::RegEnumKeyExW(FDados->Chave, AIndice, ANome, ATamanho, nullptr, nullptr, nullptr, nullptr);
    });
}

TErroRegistro TChaveRegistro::ListarValores(std::vector<std::u16string>& ANomes) const {
    if (!FDados) return erAlcaInvalida;
    return Listar(ANomes, [&](DWORD AIndice, wchar_t* ANome, DWORD* ATamanho) {
        return ::RegEnumValueW(FDados->Chave, AIndice, ANome, ATamanho, nullptr, nullptr, nullptr, nullptr);
    });
}

std::u16string BuscarTextoDoErroRegistro(TErroRegistro AErro) { return DescreverErroDoSistema(AErro); }

}  // namespace OryUtils::Interno
