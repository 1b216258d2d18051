// The help window: the program's HTML manual with its contents, its index and a search
// over all its pages, in one window beside the main window.
#pragma once

#include <QDir>
#include <QWidget>

class QLineEdit;
class QListWidget;
class QTabWidget;
class QTextBrowser;

namespace ui::qt {

class HelpWindow : public QWidget {
 public:
  explicit HelpWindow(const QString& manualDir, QWidget* parent = nullptr);
  void ShowContents();
  void ShowIndex();
  void ShowSearch();
  // Pages whose text holds every word of the query, by title.
  QStringList Search(const QString& query) const;
  QTextBrowser* browser() const { return browser_; }
  QListWidget* results() const { return results_; }
  QLineEdit* query() const { return query_; }
  QListWidget* index() const { return index_; }

 private:
  void Open(const QString& page);
  void FillIndex();
  void RunSearch();

  QDir dir_;
  QTabWidget* tabs_;
  QTextBrowser* browser_;
  QListWidget* index_;
  QLineEdit* query_;
  QListWidget* results_;
};

}  // namespace ui::qt
