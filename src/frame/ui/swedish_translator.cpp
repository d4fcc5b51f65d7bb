#include "frame/ui/swedish_translator.h"

namespace korvin {
namespace {

QByteArray keyOf(const char* context, const char* english) {
  return QByteArray(context) + '\n' + english;
}

constexpr SwedishTranslator::Word table[] = {
    {"QPlatformTheme", "OK", "OK"},
    {"QPlatformTheme", "Save", "Spara"},
    {"QPlatformTheme", "Save All", "Spara alla"},
    {"QPlatformTheme", "Open", "Öppna"},
    {"QPlatformTheme", "&Yes", "&Ja"},
    {"QPlatformTheme", "Yes to &All", "Ja till &alla"},
    {"QPlatformTheme", "&No", "&Nej"},
    {"QPlatformTheme", "N&o to All", "Ne&j till alla"},
    {"QPlatformTheme", "Abort", "Avbryt"},
    {"QPlatformTheme", "Retry", "Försök igen"},
    {"QPlatformTheme", "Ignore", "Ignorera"},
    {"QPlatformTheme", "Close", "Stäng"},
    {"QPlatformTheme", "Cancel", "Avbryt"},
    {"QPlatformTheme", "Discard", "Kasta"},
    {"QPlatformTheme", "Help", "Hjälp"},
    {"QPlatformTheme", "Apply", "Verkställ"},
    {"QPlatformTheme", "Reset", "Återställ"},
    {"QPlatformTheme", "Restore Defaults", "Återställ standardvärden"},

    {"QDialogButtonBox", "OK", "OK"},

    {"QFileDialog", "Look in:", "Sök i:"},
    {"QFileDialog", "Back", "Bakåt"},
    {"QFileDialog", "Go back", "Gå bakåt"},
    {"QFileDialog", "Alt+Left", "Alt+Left"},
    {"QFileDialog", "Forward", "Framåt"},
    {"QFileDialog", "Go forward", "Gå framåt"},
    {"QFileDialog", "Alt+Right", "Alt+Right"},
    {"QFileDialog", "Parent Directory", "Överordnad mapp"},
    {"QFileDialog", "Go to the parent directory", "Gå till den överordnade mappen"},
    {"QFileDialog", "Alt+Up", "Alt+Up"},
    {"QFileDialog", "Create New Folder", "Skapa ny mapp"},
    {"QFileDialog", "Create a New Folder", "Skapa en ny mapp"},
    {"QFileDialog", "List View", "Listvy"},
    {"QFileDialog", "Change to list view mode", "Byt till listvy"},
    {"QFileDialog", "Detail View", "Detaljvy"},
    {"QFileDialog", "Change to detail view mode", "Byt till detaljvy"},
    {"QFileDialog", "Sidebar", "Sidofält"},
    {"QFileDialog", "List of places and bookmarks", "Lista över platser och bokmärken"},
    {"QFileDialog", "Files", "Filer"},
    {"QFileDialog", "Files of type:", "Filtyp:"},
    {"QFileDialog", "Find Directory", "Sök mapp"},
    {"QFileDialog", "Open", "Öppna"},
    {"QFileDialog", "Save As", "Spara som"},
    {"QFileDialog", "Directory:", "Mapp:"},
    {"QFileDialog", "File &name:", "Fil&namn:"},
    {"QFileDialog", "&Open", "&Öppna"},
    {"QFileDialog", "&Choose", "&Välj"},
    {"QFileDialog", "&Save", "&Spara"},
    {"QFileDialog", "All Files (*)", "Alla filer (*)"},
    {"QFileDialog", "Show ", "Visa "},
    {"QFileDialog", "&Rename", "&Byt namn"},
    {"QFileDialog", "&Delete", "&Ta bort"},
    {"QFileDialog", "Show &hidden files", "Visa &dolda filer"},
    {"QFileDialog", "&New Folder", "&Ny mapp"},
    {"QFileDialog", "New Folder", "Ny mapp"},
    {"QFileDialog", "Delete", "Ta bort"},
    {"QFileDialog", "Directories", "Mappar"},
    {"QFileDialog", "Recent Places", "Senaste platser"},
    {"QFileDialog", "Remove", "Ta bort"},
    {"QFileDialog", "Could not delete directory.", "Mappen kunde inte tas bort."},
    {"QFileDialog", "Are you sure you want to delete '%1'?", "Ska ”%1” verkligen tas bort?"},
    {"QFileDialog", "'%1' is write protected.\nDo you want to delete it anyway?",
     "”%1” är skrivskyddad.\nSka den tas bort ändå?"},
    {"QFileDialog", "%1 already exists.\nDo you want to replace it?", "%1 finns redan.\nSka den ersättas?"},
    {"QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nFilen hittades inte.\nKontrollera att filnamnet stämmer."},
    {"QFileDialog", "%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nMappen hittades inte.\nKontrollera att mappens namn stämmer."},

    {"QFileSystemModel", "Name", "Namn"},
    {"QFileSystemModel", "Size", "Storlek"},
    {"QFileSystemModel", "Type", "Typ"},
    {"QFileSystemModel", "Kind", "Typ"},
    {"QFileSystemModel", "Date Modified", "Ändrad"},
    {"QFileSystemModel", "Computer", "Dator"},
    {"QFileSystemModel", "My Computer", "Min dator"},

    {"QAbstractFileIconProvider", "Drive", "Enhet"},
    {"QAbstractFileIconProvider", "File", "Fil"},
    {"QAbstractFileIconProvider", "Folder", "Mapp"},
    {"QAbstractFileIconProvider", "Shortcut", "Genväg"},
    {"QAbstractFileIconProvider", "Unknown", "Okänd"},

    {"QLineEdit", "&Undo", "Å&ngra"},
    {"QLineEdit", "&Redo", "&Gör om"},
    {"QLineEdit", "Cu&t", "Klipp &ut"},
    {"QLineEdit", "&Copy", "&Kopiera"},
    {"QLineEdit", "&Paste", "K&listra in"},
    {"QLineEdit", "Delete", "Ta bort"},
    {"QLineEdit", "Select All", "Markera allt"},

    {"QWidgetTextControl", "&Undo", "Å&ngra"},
    {"QWidgetTextControl", "&Redo", "&Gör om"},
    {"QWidgetTextControl", "Cu&t", "Klipp &ut"},
    {"QWidgetTextControl", "&Copy", "&Kopiera"},
    {"QWidgetTextControl", "Copy &Link Location", "Kopiera &länkadress"},
    {"QWidgetTextControl", "&Paste", "K&listra in"},
    {"QWidgetTextControl", "Delete", "Ta bort"},
    {"QWidgetTextControl", "Select All", "Markera allt"},

    {"QAbstractSpinBox", "&Select All", "&Markera allt"},
    {"QAbstractSpinBox", "&Step up", "&Öka"},
    {"QAbstractSpinBox", "Step &down", "&Minska"},

    {"QMessageBox", "Show Details...", "Visa detaljer …"},
    {"QMessageBox", "Hide Details...", "Dölj detaljer …"},

    {"QShortcut", "Ctrl", "Ctrl"},
    {"QShortcut", "Shift", "Skift"},
    {"QShortcut", "Alt", "Alt"},
    {"QShortcut", "Del", "Del"},
    {"QShortcut", "Space", "Blanksteg"},
    {"QShortcut", "Left", "Vänster"},
    {"QShortcut", "Right", "Höger"},
    {"QShortcut", "Up", "Upp"},
    {"QShortcut", "Down", "Ned"},
};

}  // namespace

SwedishTranslator::SwedishTranslator(QObject* parent) : QTranslator(parent) {
  for (const Word& word : table) swedish_.insert(keyOf(word.context, word.english), word.swedish);
}

QString SwedishTranslator::translate(const char* context, const char* sourceText,
                                     const char* /*disambiguation*/, int /*n*/) const {
  // A null text means: not here, ask the next translator.
  const char* word = swedish_.value(keyOf(context, sourceText), nullptr);
  return word != nullptr ? QString::fromUtf8(word) : QString();
}

std::span<const SwedishTranslator::Word> SwedishTranslator::words() {
  return table;
}

}  // namespace korvin
