#include "desktop/form_loader.h"

#include <QFile>
#include <QUiLoader>

#include "desktop/canvas_widget.h"

namespace kestra {
namespace {

class Loader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    if (className != QLatin1String("CanvasWidget")) return QUiLoader::createWidget(className, parent, name);
    auto* const canvas = new CanvasWidget(parent);
    canvas->setObjectName(name);
    return canvas;
  }
};

}  // namespace

QWidget* loadForm(const QString& name, QWidget* parent) {
  QFile form(QStringLiteral(":/ui/%1.ui").arg(name));
  if (!form.open(QIODevice::ReadOnly)) return nullptr;
  Loader loader;
  return loader.load(&form, parent);
}

}  // namespace kestra
