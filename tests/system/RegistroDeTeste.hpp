#pragma once

#include "oryutils/readers/DadoReg.hpp"
#include "oryutils/system/OryUtilsRegistry.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

/// What the tests of the registry share on both systems.
namespace Teste {

inline constexpr std::u16string_view CChave = u"Software\\OryUtilsTeste";
/// The end of messages about settings of the machine.
inline constexpr std::u16string_view CConselho =
    u".\r\n\r\nEm algumas versões do Windows, o acesso à configurações de registradores necessita que a aplicação "
    u"possua "
    u"privilégios de administrador.\r\n\r\nExecute a aplicação em modo administrador e tente novamente.";

/// (Linux) points the store to an empty folder of this test; it goes with the object. (Windows) nothing.
class TRegistroIsolado {
public:
    TRegistroIsolado();
    ~TRegistroIsolado();
    TRegistroIsolado(const TRegistroIsolado&) = delete;
    TRegistroIsolado& operator=(const TRegistroIsolado&) = delete;

    std::string Pasta{};  // Linux
};

/// A value below HKEY_LOCAL_MACHINE as it was kept, read without an accessor: by the system's own calls in the 64-bit
/// view, or on Linux from the store's file. None when it is missing.
std::optional<OryUtils::Interno::TDadoRegistro> LerDadoDoSistema(std::u16string_view AChave,
                                                                 std::u16string_view AValor);
/// The same as an exported file shows it ("dword:00000001"); "" when it is missing.
inline std::u16string LerDoSistema(std::u16string_view AChave, std::u16string_view AValor) {
    std::u16string texto;
    if (const auto dado = LerDadoDoSistema(AChave, AValor)) OryUtils::Interno::AnexarDadoReg(texto, *dado, 0);
    return texto;
}

/// Puts a value of the machine back as it was, missing included.
class TValorPreservado {
public:
    TValorPreservado(std::u16string_view AChave, std::u16string_view AValor)
        : FValor(AValor), FAntigo(LerDadoDoSistema(AChave, AValor)) {
        FChave.Abrir(OryUtils::crLocalMachine, AChave, OryUtils::arTotal, false);
    }
    ~TValorPreservado() {
        if (FAntigo)
            FChave.Gravar(FValor, *FAntigo);
        else
            FChave.ExcluirValor(FValor);
    }
    TValorPreservado(const TValorPreservado&) = delete;
    TValorPreservado& operator=(const TValorPreservado&) = delete;

    void Excluir() { FChave.ExcluirValor(FValor); }
    void Gravar(const OryUtils::Interno::TDadoRegistro& ADado) { FChave.Gravar(FValor, ADado); }

private:
    OryUtils::Interno::TChaveRegistro FChave{};
    std::u16string FValor;
    std::optional<OryUtils::Interno::TDadoRegistro> FAntigo{};
};

/// An empty key HKEY_LOCAL_MACHINE\Software\OryUtilsTeste for each test.
class TRegistro : public testing::Test {
protected:
    TRegistro() {
        Acessor.SetRootKey(OryUtils::crLocalMachine);
        Acessor.DeleteKey(CChave);
        Acessor.CreateKey(CChave);
    }
    ~TRegistro() override {
        Acessor.CloseKey();
        Acessor.DeleteKey(CChave);
    }

    TRegistroIsolado Isolado{};
    OryUtils::TRegistry Acessor{};
    OryUtils::TOryUtilsRegistro Registro{};
};

}  // namespace Teste
