#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace korvin {

/// The picture `key` ("ICON31") of the program's family, sharp at any size, its lines lightened on a dark
/// ground. An unknown or empty key gives an empty icon.
QIcon icon(const QString& key);

/// The same as a picture of `side` by `side` device-independent pixels for a screen with `pixelRatio`.
QPixmap iconPixmap(const QString& key, int side, qreal pixelRatio);

}  // namespace korvin
