#pragma once

#include <QHash>
#include <QWidget>
#include <functional>

#include "frame/dictionary.h"

class QLabel;
class QVBoxLayout;

namespace korvin {

class StartTile;

/// What a user meets first: a heading and a large tile for each measuring kind and for opening a file. Tiles
/// are known by the keys of the main tool bar; the tile of "Position" bears the object name
/// "StartTile(Position)".
class StartScreen : public QWidget {
  Q_OBJECT

 public:
  explicit StartScreen(QWidget* parent = nullptr);

  /// The caption pass.
  void setCaptions(Dictionary& dictionary);
  /// Kinds without a window are shown, but disabled.
  void setKeyEnabled(const QString& key, bool enabled);
  StartTile* tile(const QString& key) const;

  std::function<void(const QString& key)> onTile;

 private:
  void buildHead(QVBoxLayout& into);
  void buildTiles(QVBoxLayout& into);

  QLabel* head_;
  QLabel* line_;
  QLabel* picture_;
  QHash<QString, StartTile*> tiles_;
};

}  // namespace korvin
