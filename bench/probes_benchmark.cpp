// The longest work of the program is a probe of 1500 file names at a change of
// screen. These measure it on an empty folder and on one with many draws.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "screen/application.h"
#include "screen/form.h"
#include "screen/working_directory.h"
#include "store/draw_store.h"
#include "store/probes.h"

namespace {

namespace fs = std::filesystem;

class NoDialogs : public veridraw::Dialogs {
 public:
  int MsgBox(const std::string&, int, const std::string&) override { return 1; }
  std::string InputBox(const std::string&, const std::string&, const std::string&, int,
                       int) override {
    return "";
  }
};

fs::path folderWithDraws(int draws) {
  const fs::path folder = veridraw::makeWorkingDirectory("veridraw-bench");
  for (int draw = 1; draw <= draws; ++draw)
    std::ofstream(folder / std::to_string(draw)) << draw;
  return folder;
}

class ListForm : public veridraw::Form {
 public:
  explicit ListForm(veridraw::Application& application)
      : Form(application,
             {"Bench", 1000, 1000, 0, {veridraw::listBox("List1", {0, 0, 735, 1230})}}) {}
};

void ListAllDraws(benchmark::State& state) {
  const fs::path folder = folderWithDraws(static_cast<int>(state.range(0)));
  NoDialogs dialogs;
  veridraw::Application application(dialogs, folder);
  application.addForm<ListForm>();
  application.start("Bench");
  veridraw::Control& list = application.form("Bench").control("List1");
  std::string probe;
  for (auto _ : state) {
    veridraw::store::ClearList(list, veridraw::store::kListedDraws);
    benchmark::DoNotOptimize(veridraw::store::ListNames(application.files(), list, "",
                                                        veridraw::store::kListedDraws, probe));
  }
  fs::remove_all(folder);
}
BENCHMARK(ListAllDraws)->Arg(0)->Arg(100)->Arg(1500)->Unit(benchmark::kMillisecond);

void FindDraw(benchmark::State& state) {
  const fs::path folder = folderWithDraws(static_cast<int>(state.range(0)));
  veridraw::SequentialFiles files(folder);
  std::string probe;
  veridraw::Integer missing;
  for (auto _ : state) {
    veridraw::store::FindName(files, "", veridraw::store::kListedDraws, "1500", probe, missing);
    benchmark::DoNotOptimize(missing);
  }
  fs::remove_all(folder);
}
BENCHMARK(FindDraw)->Arg(0)->Arg(1500)->Unit(benchmark::kMillisecond);

void ReadCurrentDraw(benchmark::State& state) {
  const fs::path folder = folderWithDraws(0);
  std::ofstream(folder / "DrawNumber", std::ios::binary) << "705\r\n";
  std::ofstream(folder / "705", std::ios::binary) << "705\r\nX0308172239401202\r\nZ17033908\r\n";
  veridraw::SequentialFiles files(folder);
  veridraw::store::DrawFields draw;
  for (auto _ : state) {
    veridraw::store::ReadCurrentDraw(files, draw);
    benchmark::DoNotOptimize(draw.DrawNumbersText);
  }
  fs::remove_all(folder);
}
BENCHMARK(ReadCurrentDraw);

}  // namespace
