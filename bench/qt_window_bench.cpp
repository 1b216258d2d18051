// Speed of the desktop window under the offscreen platform: start-up to a shown main
// window, opening and showing an application of 9,999 lines, and the repaint after
// Insert and Delete on such a list.
#include <benchmark/benchmark.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QListView>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/file.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/frm_edit.h"
#include "editor/line_editing.h"
#include "ui/qt/form_binding.h"
#include "ui/qt/form_windows.h"
#include "ui/qt/qt_platform.h"

namespace {

QTemporaryDir* g_home = nullptr;

struct Editor {
  Editor() {
    platform.SetQuitOnMainUnload(false);
    platform.SetDataDirectory(g_home->path().toStdString());
    ui::SetPlatform(&platform);
    form = std::make_unique<kq::FrmEdit>();
    platform.Show(*form);
    QApplication::processEvents();
  }
  ~Editor() {
    platform.CloseMain();
    form.reset();
    ui::SetPlatform(nullptr);
  }
  QListView* list() const {
    return static_cast<QListView*>(platform.Main()->binding().WidgetOf(form->lstEdit));
  }
  void Repaint() const {
    list()->viewport()->repaint();
    QApplication::processEvents();
  }
  ui::qt::QtPlatform platform;
  std::unique_ptr<kq::FrmEdit> form;
};

int RemarkNumber() {
  for (int i = 0; i < kq::kFuncCount; ++i) {
    if (kq::RTrimZ(std::string_view(kq::FuncNames[i], 17)) == "Remark") return i;
  }
  return -1;
}

// The hand-over fields of a new Remark line, as its dialog leaves them.
void HandOverRemark(int funcNo, const std::string& text) {
  kq::FuncNo = static_cast<int16_t>(funcNo);
  kq::FuncName.assign(kq::FuncNames[funcNo], 17);
  kq::FuncLabel = std::string(1, '\0') + std::string(15, ' ');
  kq::FuncLine = "\t\t" + kq::NulToBlank(kq::FuncName) + "\t" + text;
  kq::WorkRecord = kq::InitRecord;
}

// Writes an application of 9,999 Remark lines once, through the editor's own stores.
std::string LongFile() {
  static std::string path;
  if (!path.empty()) return path;
  path = (g_home->path() + "/long.kqx").toStdString();
  Editor e;
  e.form->mnuFileItem_Click(0);  // New
  const int remark = RemarkNumber();
  std::vector<std::string> items;
  for (int i = 0; i < 9999; ++i) {
    HandOverRemark(remark, "line " + std::to_string(i) + " of a long application");
    items.push_back(kq::Format0000(i) + kq::FuncLine);
    kq::LineTable[i].LineFuncNo = static_cast<int16_t>(remark);
    std::copy_n(kq::FuncName.data(), 17, kq::LineTable[i].LineFuncName);
    std::copy_n(kq::FuncLabel.data(), 16, kq::LineTable[i].LineLabel);
    kq::UpdateFuncParm(i, remark);
  }
  e.form->lstEdit.ReplaceAll(std::move(items));
  kq::PrgHdr.LineCount = 9999;
  std::string title = "long.kqx";
  std::string name = path;
  kq::SaveFile(title, name, true, 0, 9998, kq::PrgHdr.LineCount);
  return path;
}

void OpenLong(Editor& e, const std::string& path) {
  e.platform.QueueFile(path);
  e.form->mnuFileItem_Click(1);  // Open
}

void CloseDocument(Editor& e) {
  kq::ChangedFlag = false;
  kq::PrgHdr.CompiledFlag = -1;  // no prompts on the way out
  e.form->mnuFileItem_Click(6);
}

void BM_StartUpToShownWindow(benchmark::State& state) {
  for (auto _ : state) {
    Editor e;
    benchmark::DoNotOptimize(e.platform.Main()->isVisible());
    state.PauseTiming();
    e.platform.CloseMain();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_StartUpToShownWindow)->Unit(benchmark::kMillisecond);

// The whole start of a process: loading the libraries, the application object, the
// settings, the main window shown; the child ends as soon as its window is up.
void BM_ProcessStartToShownWindow(benchmark::State& state) {
  for (auto _ : state) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--start-once")});
    if (!child.waitForFinished(10000) || child.exitCode() != 0) {
      state.SkipWithError("the program did not start");
      break;
    }
  }
}
BENCHMARK(BM_ProcessStartToShownWindow)->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_Open9999LinesAndShow(benchmark::State& state) {
  const std::string path = LongFile();
  Editor e;
  for (auto _ : state) {
    OpenLong(e, path);
    e.Repaint();
    state.PauseTiming();
    if (e.form->lstEdit.ListCount() != 9999) state.SkipWithError("the file did not open");
    CloseDocument(e);
    state.ResumeTiming();
  }
}
BENCHMARK(BM_Open9999LinesAndShow)->Unit(benchmark::kMillisecond);

void BM_InsertRepaint(benchmark::State& state) {
  const std::string path = LongFile();
  Editor e;
  OpenLong(e, path);
  e.Repaint();
  const int remark = RemarkNumber();
  for (auto _ : state) {
    state.PauseTiming();
    HandOverRemark(remark, "inserted");
    state.ResumeTiming();
    kq::InsertLineInStores(e.form->lstEdit, 5000);
    e.Repaint();
    state.PauseTiming();
    e.form->lstEdit.UserSelect(5000);
    kq::DeleteSelectedFromStores(e.form->lstEdit);
    state.ResumeTiming();
  }
}
BENCHMARK(BM_InsertRepaint)->Unit(benchmark::kMillisecond);

void BM_DeleteRepaint(benchmark::State& state) {
  const std::string path = LongFile();
  Editor e;
  OpenLong(e, path);
  e.Repaint();
  const int remark = RemarkNumber();
  for (auto _ : state) {
    state.PauseTiming();
    e.form->lstEdit.UserSelect(5000);
    state.ResumeTiming();
    kq::DeleteSelectedFromStores(e.form->lstEdit);
    e.Repaint();
    state.PauseTiming();
    HandOverRemark(remark, "inserted");
    kq::InsertLineInStores(e.form->lstEdit, 5000);
    state.ResumeTiming();
  }
}
BENCHMARK(BM_DeleteRepaint)->Unit(benchmark::kMillisecond);

// Scrolling a page down through the long list, as a person holds Page Down.
void BM_PageDownRepaint(benchmark::State& state) {
  const std::string path = LongFile();
  Editor e;
  OpenLong(e, path);
  e.form->lstEdit.UserSelect(0);
  int row = 0;
  for (auto _ : state) {
    row = (row + 40) % 9999;
    e.form->lstEdit.UserSelect(row);
    e.Repaint();
  }
}
BENCHMARK(BM_PageDownRepaint)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QTemporaryDir home;
  g_home = &home;
  qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toUtf8());
  qputenv("XDG_DATA_HOME", (home.path() + "/data").toUtf8());
  QElapsedTimer clock;
  clock.start();
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("KQEdit"));
  QApplication::setApplicationName(QStringLiteral("KQEdit"));
  if (argc > 1 && std::string(argv[1]) == "--start-once") {
    Editor e;
    return e.platform.Main()->isVisible() ? 0 : 1;
  }
  std::printf("QApplication construction: %.1f ms\n", clock.nsecsElapsed() / 1e6);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
