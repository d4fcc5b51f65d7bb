#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace korvin {

/// What a picture lies on: a window in the present look, or a panel that is dark in every look.
enum class IconGround { window, darkPanel };

/// The picture `key` ("ICON31") of the program's family, sharp at any size, its lines lightened on a dark
/// ground. An unknown or empty key gives an empty icon.
QIcon icon(const QString& key, IconGround ground = IconGround::window);

/// The same as a picture of `side` by `side` device-independent pixels for a screen with `pixelRatio`.
QPixmap iconPixmap(const QString& key, int side, qreal pixelRatio, IconGround ground = IconGround::window);

}  // namespace korvin
