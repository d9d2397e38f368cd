#include "desktop/desk.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/qt_text.h"

namespace kestra {
namespace {

constexpr int kTwipsPerInch = 1440;
constexpr QSize kUsualSize{1180, 820};
constexpr int kLookMs = 500;
constexpr QSize kFrame{16, 48};  // room for the frame that the system puts round a window
constexpr const char* kWindowSection = "Window";

}  // namespace

Desk::Desk(Application& application) : application_(application), area_(new QMdiArea(this)) {
  setObjectName(QStringLiteral("desk"));
  setCentralWidget(area_);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  late_.setSingleShot(true);
  late_.setInterval(0);
  focusLate_.setSingleShot(true);
  focusLate_.setInterval(0);
  keeping_.setInterval(kLookMs);
  connect(&keeping_, &QTimer::timeout, this, [this] { keepInput(); });
  connect(&late_, &QTimer::timeout, this, [this] {
    arrange();
    focusInside();
  });
  connect(&focusLate_, &QTimer::timeout, this, [this] { act([] {}); });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { takeFocusChange(now); });
  connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) { takeActivation(window); });
  auto* const help = new QShortcut(QKeySequence::HelpContents, this);
  help->setContext(Qt::ApplicationShortcut);
  connect(help, &QShortcut::activated, this, [this] { showHelp(); });
  application_.host.setModalLoop(this);
  application_.host.onArrange = [this](WindowArrangement arrangement) { arrangeWindows(arrangement); };
  for (Screen* screen : application_.host.screens()) screen->addObserver(*this);
}

Desk::~Desk() {
  application_.host.setModalLoop(nullptr);
  application_.host.onArrange = nullptr;
  for (Screen* screen : application_.host.screens()) screen->removeObserver(*this);
  disconnect(qApp, nullptr, this, nullptr);
  disconnect(area_, nullptr, this, nullptr);
  views_.clear();
}

void Desk::start(const QString& commandLine) {
  restorePlace();
  act([this, &commandLine] { application_.shell.startUp(told(commandLine)); });
  arrange();
  setWindowIcon(QIcon(QStringLiteral(":/pictures/kestra-b.svg")));
  show();
  application_.shell.autosave.turnOn();
  keeping_.start();
}

ScreenView& Desk::viewOf(Screen& screen) {
  std::unique_ptr<ScreenView>& view = views_[&screen];
  if (view == nullptr)
    view = std::make_unique<ScreenView>(screen, [this](const std::function<void()>& action) { act(action); });
  return *view;
}

void Desk::run(Screen& screen) {
  Screen* const outer = std::exchange(modal_, &screen);
  QDialog window(this);
  const QPointer<QDialog> outerDialog = std::exchange(dialog_, &window);
  window.installEventFilter(this);
  window.setWindowTitle(shown(screen.title()));
  ScreenView& view = viewOf(screen);
  auto* const layout = new QVBoxLayout(&window);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&view);
  view.show();
  if (view.menus() != nullptr) view.menus()->show();
  QEventLoop loop;
  view.onScreenChanged = [&screen, &loop] {
    if (!screen.visible()) loop.quit();
  };
  window.setWindowModality(Qt::WindowModal);  // the help stays within reach
  window.show();
  followFocus();
  if (screen.visible()) loop.exec();
  view.onScreenChanged = nullptr;
  if (view.menus() != nullptr) view.menus()->hide();
  view.setParent(nullptr);
  dialog_ = outerDialog;
  modal_ = outer;
}

void Desk::screenChanged(Screen& screen) {
  (void)screen;
  late_.start();
}

void Desk::closeEvent(QCloseEvent* event) {
  act([this] { application_.host.closeByFrame(application_.shell.topScreen); });
  if (!application_.shell.ended()) event->ignore();
}

bool Desk::eventFilter(QObject* watched, QEvent* event) {
  const bool dialog = watched == dialog_ || watched == progress_;
  const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
  if (dialog && key == Qt::Key_F1) {
    showHelp();
    return true;
  }
  const bool escapes = dialog && key == Qt::Key_Escape;  // closes it without saying so
  if (event->type() != QEvent::Close && !escapes) return QMainWindow::eventFilter(watched, event);
  Screen* screen = watched == dialog_ ? modal_ : nullptr;
  if (watched == progress_) screen = &application_.shell.progress;
  for (const auto& [shownScreen, window] : windows_)
    if (watched == window) screen = shownScreen;
  if (screen == nullptr) return false;
  event->ignore();
  act([this, screen] { application_.host.closeByFrame(*screen); });
  return true;
}

void Desk::act(const std::function<void()>& action) {
  ++depth_;
  settle();
  action();
  if (--depth_ > 0) return;
  settle();
  arrange();
  followFocus();
  focusInside();
  if (application_.shell.ended()) {
    keepPlace();
    QApplication::quit();
  }
}

void Desk::settle() {
  if (wanted_ == current_) return;
  Control* const left = current_;
  Control* const entered = std::exchange(wanted_, nullptr);
  current_ = entered;
  wanted_ = entered;
  if (left != nullptr && left->screen().loaded()) left->userLeave();
  const bool takenBack = application_.host.focus() == left && left != nullptr;
  if (entered != nullptr && !takenBack && entered->screen().loaded()) entered->userFocus();
}

void Desk::followFocus() {
  Control* const focus = application_.host.focus();
  if (focus == nullptr || focus == current_) return;
  QWidget* const widget = viewOf(focus->screen()).widgetOf(*focus);
  current_ = focus;
  wanted_ = focus;
  if (widget != nullptr) widget->setFocus(Qt::OtherFocusReason);
}

void Desk::focusInside() {
  const QMdiSubWindow* const front = area_->activeSubWindow();
  if (modal_ != nullptr || front == nullptr || !front->isVisible() || QApplication::activePopupWidget() != nullptr)
    return;
  const QWidget* const focus = focusWidget();
  if (focus != nullptr && focus->isVisible() && (front->isAncestorOf(focus) || focus == menuBar())) return;
  QWidget* const view = front->widget();
  for (QWidget* next = view->nextInFocusChain(); next != view; next = next->nextInFocusChain()) {
    const bool stops = (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled() && next->isVisible();
    if (stops && view->isAncestorOf(next)) return next->setFocus(Qt::OtherFocusReason);
  }
}

void Desk::takeFocusChange(QWidget* now) {
  Control* const control = controlOf(now);
  if (control == nullptr || control == wanted_) return;
  wanted_ = control;
  focusLate_.start();
}

void Desk::takeActivation(const QMdiSubWindow* window) {
  if (arranging_ || window == nullptr) return;
  for (const auto& [shownScreen, itsWindow] : windows_) {
    Screen& screen = *shownScreen;
    if (itsWindow != window || !screen.visible() || application_.host.shown().front() == &screen) continue;
    return act([this, &screen] { application_.host.show(screen); });
  }
}

void Desk::arrange() {
  late_.stop();
  const bool outer = std::exchange(arranging_, true);
  for (Screen* screen : application_.host.screens()) {
    if (!standsApart(*screen)) place(*screen);
  }
  placeProgress();
  followTitle(application_.shell.topScreen);
  const std::vector<Screen*>& front = application_.host.shown();
  if (!front.empty() && !standsApart(*front.front())) {
    QMdiSubWindow& window = windowOf(*front.front());
    if (area_->activeSubWindow() != &window) area_->setActiveSubWindow(&window);
  }
  followMenus();
  arranging_ = outer;
}

// The frame itself, and screens that stand above it in windows of their own.
bool Desk::standsApart(const Screen& screen) const {
  return &screen == &application_.shell.topScreen || &screen == &application_.shell.progress || &screen == modal_;
}

// While a command runs nothing else can be reached: its window is modal, but nobody waits for it to close.
void Desk::placeProgress() {
  frmProgress& screen = application_.shell.progress;
  if (!screen.visible()) {
    if (progress_ != nullptr) progress_->hide();
    return;
  }
  if (progress_ == nullptr) {
    progress_ = new QDialog(this);
    progress_->setWindowModality(Qt::WindowModal);
    progress_->installEventFilter(this);
    auto* const layout = new QVBoxLayout(progress_);
    layout->addWidget(&viewOf(screen));
    viewOf(screen).show();
  }
  progress_->setWindowTitle(shown(screen.title()));
  progress_->show();
}

void Desk::showHelp() {
  const std::vector<Screen*>& front = application_.host.shown();
  auto* const button = front.empty() ? nullptr : dynamic_cast<Button*>(front.front()->find("cmdHelp"));
  act([this, button] { button != nullptr ? button->click() : application_.ports.help.showTopic({}); });
}

void Desk::arrangeWindows(WindowArrangement arrangement) {
  arrangement == WindowArrangement::cascade ? area_->cascadeSubWindows() : area_->tileSubWindows();
}

void Desk::place(Screen& screen) {
  const auto at = windows_.find(&screen);
  const bool there = at != windows_.end() && at->second != nullptr;
  if (!screen.visible()) {
    if (there) at->second->hide();
    return;
  }
  QMdiSubWindow& window = windowOf(screen);
  followTitle(screen);
  if (window.isVisible()) return;
  window.widget()->show();
  window.show();
  moveInside(window);
}

// The area puts a window where it covers the fewest others, which may be half outside.
void Desk::moveInside(QMdiSubWindow& window) {
  const QSize space = area_->viewport()->size();
  if (!area_->isVisible()) return;
  window.move(std::clamp(window.x(), 0, std::max(0, space.width() - window.width())),
              std::clamp(window.y(), 0, std::max(0, space.height() - window.height())));
}

QMdiSubWindow& Desk::windowOf(Screen& screen) {
  QPointer<QMdiSubWindow>& window = windows_[&screen];
  if (window == nullptr) {
    ScreenView& view = viewOf(screen);
    window = area_->addSubWindow(&view);
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    window->installEventFilter(this);
    if (screen.width() > 0)
      window->resize(screen.width() * logicalDpiX() / kTwipsPerInch, screen.height() * logicalDpiY() / kTwipsPerInch);
    const QSize fitting = window->size().expandedTo(window->sizeHint());
    window->resize(area_->isVisible() ? fitting.boundedTo(area_->viewport()->size()) : fitting);
  }
  return *window;
}

void Desk::followMenus() {
  if (modal_ != nullptr || application_.shell.progress.visible()) return;  // no menu can be reached
  QMenuBar* const bar = menuBar();
  QList<QAction*> entries;
  const auto take = [&entries](QMenuBar* menus) {
    if (menus == nullptr) return;
    menus->hide();
    for (QAction* entry : menus->actions())
      if (entry->isVisible()) entries.append(entry);  // a hidden one would take the key of a shown one
  };
  take(viewOf(application_.shell.topScreen).menus());
  const std::vector<Screen*>& front = application_.host.shown();
  const bool ofProject = !front.empty() && !standsApart(*front.front());
  QMenuBar* const own = ofProject ? viewOf(*front.front()).menus() : nullptr;
  const bool borrows = own == nullptr && ofProject && application_.shell.inputWindow.loaded();
  take(borrows ? viewOf(application_.shell.inputWindow).menus() : own);
  if (bar->actions() == entries) return;
  for (QAction* entry : bar->actions()) bar->removeAction(entry);
  bar->addActions(entries);
}

void Desk::followTitle(Screen& screen) {
  const QString title = shown(screen.title());
  if (&screen == &application_.shell.topScreen) {
    setWindowTitle(title);
    return area_->setBackground(colorOf(screen.backColor()));
  }
  windowOf(screen).setWindowTitle(title);
}

void Desk::keepInput() {
  Autosave& autosave = application_.shell.autosave;
  autosave.keep();
  const bool atRest = depth_ == 0 && modal_ == nullptr && QApplication::activeModalWidget() == nullptr &&
                      QApplication::activePopupWidget() == nullptr;
  if (atRest && autosave.mayAsk()) act([&autosave] { autosave.offer(); });
}

void Desk::keepPlace() {
  SettingsStore& settings = application_.ports.settings;
  (void)settings.set(kWindowSection, {{"geometry", told(QString::fromLatin1(saveGeometry().toBase64()))}});
}

void Desk::restorePlace() {
  const auto& top = application_.shell.topScreen;
  const QSize asked(top.width() * logicalDpiX() / kTwipsPerInch, top.height() * logicalDpiY() / kTwipsPerInch);
  resize(asked.expandedTo(kUsualSize));
  const auto kept = application_.ports.settings.get(kWindowSection, "geometry", {});
  if (!kept.empty()) restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(kept)));
  const QRect space = screen()->availableGeometry();
  if (space.contains(geometry())) return;
  const QSize most = space.size() - kFrame;
  resize(size().boundedTo(most));
  const auto within = [](int at, int least, int greatest) { return std::max(least, std::min(at, greatest)); };
  move(within(x(), space.left(), space.left() + most.width() - width()),
       within(y(), space.top(), space.top() + most.height() - height()));
}

}  // namespace kestra
