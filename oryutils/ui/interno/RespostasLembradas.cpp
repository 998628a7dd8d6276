#include "oryutils/ui/interno/RespostasLembradas.hpp"

#include "oryutils/platform/Executavel.hpp"
#include "oryutils/runtime/Registro.hpp"

#include <filesystem>
#include <string>

namespace OryUtils {
namespace {

constexpr std::u16string_view CRaiz = u"Software\\OryUtils\\Respostas";

// Each program has its own answers, by the name of its file.
std::u16string BuscarChaveDoPrograma() {
    const std::filesystem::path arquivo(Interno::BuscarArquivoExecutavel());
    return std::u16string(CRaiz) + u"\\" + arquivo.stem().u16string();
}

}  // namespace

std::optional<int> BuscarRespostaLembrada(std::u16string_view AChave) {
    try {
        TRegistry registro(arLeitura);
        if (!registro.OpenKey(BuscarChaveDoPrograma(), false) || !registro.ValueExists(AChave)) return std::nullopt;
        return registro.ReadInteger(AChave);
    } catch (const ERegistryException&) {
        return std::nullopt;
    }
}

bool LembrarResposta(std::u16string_view AChave, int AResposta) {
    try {
        TRegistry registro;
        if (!registro.OpenKey(BuscarChaveDoPrograma(), true)) return false;
        registro.WriteInteger(AChave, AResposta);
        return true;
    } catch (const ERegistryException&) {
        return false;
    }
}

bool EsquecerRespostaLembrada(std::u16string_view AChave) {
    TRegistry registro;
    return registro.OpenKey(BuscarChaveDoPrograma(), false) && registro.DeleteValue(AChave);
}

void EsquecerRespostasLembradas() {
    TRegistry registro;
    registro.DeleteKey(BuscarChaveDoPrograma());
}

}  // namespace OryUtils
