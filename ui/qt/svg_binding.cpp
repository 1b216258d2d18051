#include "ui/qt/svg_binding.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSvgRenderer>

namespace ui::qt {

// The picture at its natural size; the scroll area around it scrolls.
class SvgPicture : public QWidget {
 public:
  explicit SvgPicture(SvgView& view) : view_(view) {}

  void Load(const std::string& svg) {
    renderer_.load(QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
    resize(renderer_.isValid() ? renderer_.defaultSize() : QSize(1, 1));
    update();
  }
  // The element's rectangle in widget pixels; empty when the picture has no such element.
  QRectF Bounds(const std::string& id) const {
    const QString key = QString::fromStdString(id);
    if (!renderer_.isValid() || !renderer_.elementExists(key)) return {};
    const QRectF inView =
        renderer_.transformForElement(key).mapRect(renderer_.boundsOnElement(key));
    const QRectF box = renderer_.viewBoxF();
    if (box.width() <= 0 || box.height() <= 0) return inView;
    const double sx = width() / box.width(), sy = height() / box.height();
    return {(inView.x() - box.x()) * sx, (inView.y() - box.y()) * sy, inView.width() * sx,
            inView.height() * sy};
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    if (!renderer_.isValid()) return;
    renderer_.render(&p, QRectF(QPointF(0, 0), QSizeF(size())));
    const QRectF marked = Bounds(view_.Marked());
    if (!marked.isEmpty()) {
      p.setPen(QPen(QColor(220, 0, 0), 3));
      p.setBrush(QColor(255, 0, 0, 40));
      p.drawRect(marked.adjusted(-3, -3, 3, 3));
    }
  }
  void mousePressEvent(QMouseEvent* e) override {
    for (const std::string& id : view_.Elements()) {
      if (Bounds(id).contains(e->position())) {
        view_.UserClickElement(id);
        return;
      }
    }
  }

 private:
  SvgView& view_;
  QSvgRenderer renderer_;
};

SvgBinding::SvgBinding(SvgView& control, QWidget* parent)
    : ControlBinding(control, new QScrollArea(parent)),
      view_(control),
      area_(static_cast<QScrollArea*>(widget())),
      picture_(new SvgPicture(control)) {
  area_->setWidget(picture_);
  area_->setMinimumSize(400, 300);
  area_->setBackgroundRole(QPalette::Base);
  Refresh();
}

void SvgBinding::Sync(const Change& change) {
  ControlBinding::Sync(change);
  if (loaded_ != view_.Svg()) {
    loaded_ = view_.Svg();
    picture_->Load(loaded_);
  }
  const QRectF marked = picture_->Bounds(view_.Marked());
  if (!marked.isEmpty()) {
    area_->ensureVisible(
        static_cast<int>(marked.center().x()), static_cast<int>(marked.center().y()),
        static_cast<int>(marked.width() / 2) + 20, static_cast<int>(marked.height() / 2) + 20);
  }
  picture_->update();
}

}  // namespace ui::qt
