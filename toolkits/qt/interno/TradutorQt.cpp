#include "toolkits/qt/interno/TradutorQt.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace OryUtils {
namespace {

struct TTraducao {
    std::string_view Original;
    const char* Portugues;
};

// clang-format off
constexpr std::array CTraducoes{
    // Context menus of edits.
    TTraducao{"&Undo", "&Desfazer"},
    TTraducao{"&Redo", "&Refazer"},
    TTraducao{"Cu&t", "Recor&tar"},
    TTraducao{"&Copy", "&Copiar"},
    TTraducao{"&Paste", "Co&lar"},
    TTraducao{"Delete", "Excluir"},
    TTraducao{"&Delete", "&Excluir"},
    TTraducao{"Select All", "Selecionar tudo"},
    TTraducao{"Copy &Link Location", "Copiar &endereço do link"},
    // The file dialog.
    TTraducao{"Look in:", "Examinar:"},
    TTraducao{"File &name:", "&Nome do arquivo:"},
    TTraducao{"&File name:", "&Nome do arquivo:"},
    TTraducao{"Files of type:", "Arquivos do tipo:"},
    TTraducao{"Directory:", "Pasta:"},
    TTraducao{"Directories", "Pastas"},
    TTraducao{"All files (*)", "Todos os arquivos (*)"},
    TTraducao{"All Files (*)", "Todos os arquivos (*)"},
    TTraducao{"Show ", "Mostrar "},
    TTraducao{"Sidebar", "Locais"},
    TTraducao{"List of places and bookmarks", "Lista de locais e favoritos"},
    TTraducao{"Files", "Arquivos"},
    TTraducao{"Find Directory", "Procurar pasta"},
    TTraducao{"Save As", "Salvar como"},
    TTraducao{"Save", "Salvar"},
    TTraducao{"&Save", "&Salvar"},
    TTraducao{"%1 already exists.\nDo you want to replace it?", "%1 já existe.\nDeseja substituí-lo?"},
    TTraducao{"&Yes", "&Sim"},
    TTraducao{"&No", "&Não"},
    TTraducao{"Open", "Abrir"},
    TTraducao{"&Open", "&Abrir"},
    TTraducao{"&Choose", "E&scolher"},
    TTraducao{"Cancel", "Cancelar"},
    TTraducao{"&Cancel", "&Cancelar"},
    TTraducao{"Back", "Voltar"},
    TTraducao{"Forward", "Avançar"},
    TTraducao{"Parent Directory", "Pasta superior"},
    TTraducao{"Create New Folder", "Criar nova pasta"},
    TTraducao{"Create a New Folder", "Criar uma nova pasta"},
    TTraducao{"&New Folder", "&Nova pasta"},
    TTraducao{"New Folder", "Nova pasta"},
    TTraducao{"List View", "Lista"},
    TTraducao{"Change to list view mode", "Mostrar como lista"},
    TTraducao{"Detail View", "Detalhes"},
    TTraducao{"Change to detail view mode", "Mostrar detalhes"},
    TTraducao{"Go back", "Voltar"},
    TTraducao{"Go forward", "Avançar"},
    TTraducao{"Go to the parent directory", "Ir para a pasta superior"},
    TTraducao{"&Rename", "&Renomear"},
    TTraducao{"Show &hidden files", "Mostrar arquivos &ocultos"},
    TTraducao{"Remove", "Remover"},
    TTraducao{"Recent Places", "Locais recentes"},
    TTraducao{"Computer", "Computador"},
    TTraducao{"My Computer", "Computador"},
    TTraducao{"Name", "Nome"},
    TTraducao{"Size", "Tamanho"},
    TTraducao{"Type", "Tipo"},
    TTraducao{"Kind", "Tipo"},
    TTraducao{"Date Modified", "Modificado em"},
    TTraducao{"Drive", "Unidade"},
    TTraducao{"Folder", "Pasta"},
    TTraducao{"File", "Arquivo"},
    TTraducao{"%1 File", "Arquivo %1"},
    TTraducao{"%1\nFile not found.\nPlease verify the correct file name was given.",
              "%1\nArquivo não encontrado.\nVerifique o nome informado."},
    TTraducao{"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
              "%1\nPasta não encontrada.\nVerifique o nome informado."},
};
// clang-format on

}  // namespace

QString TTradutorQt::translate(const char* AContexto, const char* ATexto, const char*, int) const {
    const std::string_view contexto = AContexto ? AContexto : "", original = ATexto ? ATexto : "";
    // A host may call something of its own "Name".
    if (!contexto.starts_with('Q')) return {};
    const auto achada =
        std::find_if(CTraducoes.begin(), CTraducoes.end(), [&](const TTraducao& t) { return t.Original == original; });
    return achada == CTraducoes.end() ? QString() : QString::fromUtf8(achada->Portugues);
}

}  // namespace OryUtils
