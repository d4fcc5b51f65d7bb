#pragma once

#include <QColor>
#include <QFont>
#include <QStringList>

namespace korvin {

/// The look of all windows: Fusion with the program's own palette and a small style sheet, sized for the
/// screen. Nothing is remembered here: the present state is read back from the application's palette and
/// font.

enum class Appearance { light, dark };

/// The colours beyond the palette. Values of measurements have their own (farbe.h).
enum class ThemeColour { accent, accentGround, card, cardHover, line, softText, refuse };

/// How the desktop wants it, judged by the lightness of its palette. To be asked before `applyTheme`.
Appearance desktopAppearance();

/// Dresses the application. `scale` is the factor on the design for 1280 by 1024, `language` the index 0 to
/// 7, which picks the family for Chinese and Japanese signs. May be called again at any time.
void applyTheme(Appearance appearance, double scale, int language);

/// The scale that fits the design to a screen: the smaller of its two factors, within 0.9 and 4, so that a
/// small screen stays legible.
double screenScale(double skalaX, double skalaY);

/// True while the present look is dark.
bool isDark();

/// `pixels` of the design on the present screen.
int scaled(double pixels);

QColor themeColour(ThemeColour colour);

/// Latin family first: figures then come from it everywhere, also in the text of a PDF.
QStringList fontFamilies(int language);

/// To be set in each font that has these families. Qt keeps the further families of the first font of a kind
/// that it meets, for all later ones of that kind; a hint of its own makes each language's font another kind.
QFont::StyleHint familyHint(int language);

/// The program's font at `factor` times the size of plain text.
QFont themeFont(double factor, bool bold = false);

}  // namespace korvin
