#include "desktop/form_loader.h"

#include <QFile>
#include <QUiLoader>

#include "desktop/canvas_widget.h"
#include "desktop/sketch_widget.h"

namespace kestra {
namespace {

class Loader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    QWidget* made = nullptr;
    if (className == QLatin1String("CanvasWidget")) made = new CanvasWidget(parent);
    if (className == QLatin1String("SketchWidget")) made = new SketchWidget(parent);
    if (made == nullptr) return QUiLoader::createWidget(className, parent, name);
    made->setObjectName(name);
    return made;
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
