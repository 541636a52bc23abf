#pragma once
// The base of the item editor's tests: a small table of items, and a person who works the editor.

#include <string>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QItemSelectionModel>
#include <QPushButton>
#include <QTimer>

#include "core/amount_text.h"
#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/files.h"
#include "core/global.h"
#include "core/text.h"
#include "image/prg_plu.h"
#include "support_qt/screen_test.h"

namespace ecr::test {

class PluEditorTest : public ScreenTest {
 protected:
  static constexpr std::size_t record_size = 44;

  /// Items with the codes 10 to 50, "ITEM 10" and so on, of department 12, normal, prices of ten times their code.
  PluEditorTest() {
    start_session(Global::model_z320);
    PrgPlu.PluCount = 5;
    for (int i = 0; i < 5; ++i) item(i + 1) = made(10 * (i + 1));
    Write_PrgPlu();
  }

  static PluRecord made(int code) {
    PluRecord record{};
    number_to_bcds(record.Code, std::to_string(code));
    record.Name.set("ITEM " + std::to_string(code));
    record.Flags1 = 0x41;
    record.LinkDept = 0x12;
    record.Tax = 2;
    record.TakeOutTax = 1;
    number_to_bcds(record.Price1, std::to_string(10 * code));
    return record;
  }

  static PluRecord& item(int number) { return PrgPlu.Row[static_cast<std::size_t>(number - 1)]; }
  static std::string code(int number) { return bcds_to_number(item(number).Code); }
  static Bcd<8>& entry(std::size_t list, std::size_t number) { return PrgPlu.Lists[list - 1][number - 1]; }
  static std::string entry_code(std::size_t list, std::size_t number) { return bcds_to_number(entry(list, number)); }
  static void set_entry(std::size_t list, std::size_t number, int code) {
    number_to_bcds(entry(list, number), std::to_string(code));
  }

  void open_editor() { open("FrmPrgPlu"); }
  void open_again() {
    stage.top()->unload();
    let_screens_settle();
    open_editor();
  }
  void save() const { click("C_Salva"); }

  [[nodiscard]] NumberList& number() const { return control<NumberList>("Cmb_PluNumber"); }
  [[nodiscard]] RecordGrid& grid() const { return control<RecordGrid>("Fg_Plu"); }
  [[nodiscard]] QString cell(int row, int column) const { return grid().cells().cell(row, column); }
  [[nodiscard]] QStringList cells(int row) const {
    QStringList texts;
    for (int column = 0; column < 10; ++column) texts.append(cell(row, column));
    return texts;
  }
  [[nodiscard]] QString shown(const char* name) const { return field(name).text(); }
  [[nodiscard]] int marked_row() const {
    const QModelIndexList rows = grid().selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.front().row() + 1 : -1;
  }

  void go_to(int item_number) const {
    tab_to(number());
    let_screens_settle();
    press(Qt::Key_A, Qt::ControlModifier);
    type(QString::number(item_number));
  }
  void enter(const char* name, const QString& text) const {
    click(name);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    type(text);
  }

  /// The item file as it stands on disk.
  [[nodiscard]] std::string file() const { return bytes("Dati/PRG_PLU.BIN"); }
  [[nodiscard]] int file_count() const {
    const std::string stored = file();
    return static_cast<std::int16_t>(static_cast<unsigned char>(stored[0]) | static_cast<unsigned char>(stored[1])
                                                                                 << 8);
  }

  /// Answers the file chooser that comes up next: with a file of the application folder, or by cancelling it.
  void answer_chooser(const std::string& path) {
    answer_with([this, path] { return host(path); });
  }
  void cancel_chooser() {
    answer_with([] { return std::string{}; });
  }

  /// What the last chooser showed.
  struct SeenChooser {
    QString name;
    QString title;
    QStringList filters;
    QString named;
  };
  SeenChooser seen;

 private:
  void answer_with(const std::function<std::string()>& path) {
    QTimer::singleShot(0, &stage, [this, path] {
      auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (chooser == nullptr) {
        ADD_FAILURE() << "no file chooser is up";
        return;
      }
      auto* name = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      seen = {chooser->objectName(), chooser->windowTitle(), chooser->nameFilters(), name->text()};
      const std::string chosen = path();
      if (chosen.empty()) {
        chooser->reject();
        return;
      }
      name->setText(QString::fromStdString(chosen));
      const bool saves = chooser->acceptMode() == QFileDialog::AcceptSave;
      chooser->findChild<QDialogButtonBox*>()->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open)->click();
    });
  }
};

}  // namespace ecr::test
