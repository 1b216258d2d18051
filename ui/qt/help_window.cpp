#include "ui/qt/help_window.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace ui::qt {

namespace {

QString ReadPage(const QString& path) {
  QFile f(path);
  if (!f.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(f.readAll());
}

QString TitleOf(const QString& html, const QString& fallback) {
  static const QRegularExpression title(QStringLiteral("<title>([^<]*)</title>"),
                                        QRegularExpression::CaseInsensitiveOption);
  const auto m = title.match(html);
  return m.hasMatch() ? m.captured(1).trimmed() : fallback;
}

QString PlainText(const QString& html) {
  static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
  QString text = html;
  text.replace(tags, QStringLiteral(" "));
  return text;
}

// The links of a page, in order: target and text.
QList<QPair<QString, QString>> LinksOf(const QString& html) {
  static const QRegularExpression link(QStringLiteral("<a href=\"([^\"]+)\"[^>]*>([^<]+)</a>"),
                                       QRegularExpression::CaseInsensitiveOption);
  QList<QPair<QString, QString>> out;
  for (auto it = link.globalMatch(html); it.hasNext();) {
    const auto m = it.next();
    out.append({m.captured(1), m.captured(2).simplified()});
  }
  return out;
}

}  // namespace

HelpWindow::HelpWindow(const QString& manualDir, QWidget* parent)
    : QWidget(parent, Qt::Window), dir_(manualDir) {
  setObjectName(QStringLiteral("helpWindow"));
  setWindowTitle(QStringLiteral("KQEdit Help"));
  tabs_ = new QTabWidget;
  browser_ = new QTextBrowser;
  browser_->setSearchPaths({dir_.absolutePath()});
  browser_->setOpenExternalLinks(false);

  auto* contents = new QListWidget;
  for (const auto& [target, text] :
       LinksOf(ReadPage(dir_.filePath(QStringLiteral("index.html"))))) {
    auto* item = new QListWidgetItem(text, contents);
    item->setData(Qt::UserRole, target);
  }
  tabs_->addTab(contents, QStringLiteral("Contents"));

  index_ = new QListWidget;
  tabs_->addTab(index_, QStringLiteral("Index"));
  FillIndex();

  auto* search = new QWidget;
  query_ = new QLineEdit;
  query_->setObjectName(QStringLiteral("helpQuery"));
  auto* go = new QPushButton(QStringLiteral("List Topics"));
  results_ = new QListWidget;
  auto* searchLayout = new QVBoxLayout(search);
  searchLayout->addWidget(query_);
  searchLayout->addWidget(go);
  searchLayout->addWidget(results_);
  tabs_->addTab(search, QStringLiteral("Search"));

  for (QListWidget* list : {contents, index_, results_}) {
    QObject::connect(list, &QListWidget::itemActivated, this,
                     [this](QListWidgetItem* item) { Open(item->data(Qt::UserRole).toString()); });
    QObject::connect(list, &QListWidget::itemClicked, this,
                     [this](QListWidgetItem* item) { Open(item->data(Qt::UserRole).toString()); });
  }
  QObject::connect(go, &QPushButton::clicked, this, [this] { RunSearch(); });
  QObject::connect(query_, &QLineEdit::returnPressed, this, [this] { RunSearch(); });

  auto* split = new QSplitter;
  split->addWidget(tabs_);
  split->addWidget(browser_);
  split->setStretchFactor(1, 3);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(split);
  resize(900, 600);
  Open(QStringLiteral("index.html"));
}

void HelpWindow::Open(const QString& page) {
  QUrl url = QUrl::fromLocalFile(dir_.filePath(page.section(u'#', 0, 0)));
  if (page.contains(u'#')) url.setFragment(page.section(u'#', 1));
  browser_->setSource(url);
}

void HelpWindow::FillIndex() {
  // The manual's index page lists the keywords, each a link to its place.
  for (const auto& [target, text] :
       LinksOf(ReadPage(dir_.filePath(QStringLiteral("keywords.html"))))) {
    auto* item = new QListWidgetItem(text, index_);
    item->setData(Qt::UserRole, target);
  }
}

QStringList HelpWindow::Search(const QString& query) const {
  QStringList found;
  const QStringList words = query.simplified().split(u' ', Qt::SkipEmptyParts);
  if (words.isEmpty()) return found;
  for (const QString& name : dir_.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name)) {
    const QString html = ReadPage(dir_.filePath(name));
    const QString text = PlainText(html);
    bool all = true;
    for (const QString& w : words) all = all && text.contains(w, Qt::CaseInsensitive);
    if (all) found << name;
  }
  return found;
}

void HelpWindow::RunSearch() {
  results_->clear();
  for (const QString& name : Search(query_->text())) {
    auto* item = new QListWidgetItem(TitleOf(ReadPage(dir_.filePath(name)), name), results_);
    item->setData(Qt::UserRole, name);
  }
}

void HelpWindow::ShowContents() {
  tabs_->setCurrentIndex(0);
  Open(QStringLiteral("index.html"));
  show();
  raise();
}

void HelpWindow::ShowIndex() {
  tabs_->setCurrentIndex(1);
  show();
  raise();
}

void HelpWindow::ShowSearch() {
  tabs_->setCurrentIndex(2);
  show();
  raise();
  query_->setFocus();
}

}  // namespace ui::qt
