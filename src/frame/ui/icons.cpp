#include "frame/ui/icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include "frame/ui/theme.h"

// At global scope: the resource's symbol lives there.
static void openIconResource() {
  Q_INIT_RESOURCE(icons);
}

namespace korvin {
namespace {

QString path(const QString& key) {
  return QStringLiteral(":/icons/%1.svg").arg(key);
}

QByteArray source(const QString& key, bool dark) {
  QFile file(path(key));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QByteArray svg = file.readAll();
  // The program's own picture has a ground of its own, so it stays.
  if (dark && key != QLatin1String("ICONKORVIN")) {
    svg.replace("#33475b", "#c7d3df");
    svg.replace("#0a84c6", "#4fb6ee");
  }
  return svg;
}

/// Draws the SVG itself at whatever size is asked for.
class SvgIconEngine : public QIconEngine {
 public:
  SvgIconEngine(QString key, IconGround ground) : key_(std::move(key)), ground_(ground) {}

  void paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode, QIcon::State /*state*/) override {
    QSvgRenderer renderer(source(key_, onDark()));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    painter->save();
    if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * 0.35);
    renderer.render(painter, rectangle);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    const QString name = QStringLiteral("korvin_%1_%2x%3_%4_%5")
                             .arg(key_)
                             .arg(size.width())
                             .arg(size.height())
                             .arg(int{mode})
                             .arg(int{onDark()});
    QPixmap picture;
    if (QPixmapCache::find(name, &picture)) return picture;
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    painter.end();
    QPixmapCache::insert(name, picture);
    return picture;
  }

  QIconEngine* clone() const override { return new SvgIconEngine(key_, ground_); }
  QString key() const override { return QStringLiteral("korvin_svg"); }

 private:
  bool onDark() const { return ground_ == IconGround::darkPanel || isDark(); }

  QString key_;
  IconGround ground_;
};

}  // namespace

QIcon icon(const QString& key, IconGround ground) {
  openIconResource();
  if (key.isEmpty() || !QFile::exists(path(key))) return {};
  return QIcon(new SvgIconEngine(key, ground));
}

QPixmap iconPixmap(const QString& key, int side, qreal pixelRatio, IconGround ground) {
  return icon(key, ground).pixmap(QSize(side, side), pixelRatio);
}

}  // namespace korvin
