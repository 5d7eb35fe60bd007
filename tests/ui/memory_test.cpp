// Presses and keys while memory is short: they may be lost, but nothing is thrown at Qt, and the next ones
// work. Only what this program's own code asks for is refused.
#include <QPushButton>
#include <cstdlib>
#include <new>

#include "tests/ui/DialogFixture.h"

extern "C" const char __executable_start;  // by the linker
extern "C" const char etext;

namespace {

int gUntilRefusal = -1;  // requests until one is refused; negative: never

bool IsOwnCode(const void* caller) {
  return caller >= &__executable_start && caller < &etext;
}

void* Allocate(size_t size, const void* caller) {
  if (gUntilRefusal >= 0 && IsOwnCode(caller) && gUntilRefusal-- == 0) throw std::bad_alloc();
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

[[gnu::noinline]] void* operator new(size_t size) {
  return Allocate(size, __builtin_return_address(0));
}
void* operator new(size_t size, const std::nothrow_t&) noexcept {
  return std::malloc(size == 0 ? 1 : size);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, size_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}

namespace {

class MemoryTest : public DialogTest {
 protected:
  // Refuses the first request of `act`, then the second, and so on, as long as there is one. `check` follows
  // each time.
  static int RefuseOneByOne(const std::function<void()>& act, const std::function<void()>& check) {
    for (int request = 0;; ++request) {
      SCOPED_TRACE("request " + std::to_string(request));
      gUntilRefusal = request;
      try {
        act();
      } catch (const std::bad_alloc&) {
        ADD_FAILURE() << "went through Qt";
      }
      const bool refused = std::exchange(gUntilRefusal, -1) < 0;
      RunEventPass(0);
      check();
      if (!refused || HasFailure()) return request;
    }
  }
};

TEST_F(MemoryTest, PressesAndKeysLeaveTheQueueInOrder) {
  Show();
  SetKeyboardFocus(m_window, Item(kEdit));
  m_keyReceiver = Item(kEdit);
  const auto expectOrder = [this] {
    m_log.clear();
    QTest::mouseClick(ItemWidget(kButton), Qt::LeftButton);
    QTest::keyClick(ItemWidget(kEdit), 'x');
    EXPECT_EQ(TakeLog(), (EventLog{"down", "hit item1", "key 120 0", "changed"}));
    EXPECT_FALSE(ItemWidget<QPushButton>(kButton)->isDown());
  };
  QWidget* const button = ItemWidget(kButton);
  QWidget* const edit = ItemWidget(kEdit);
  m_log.reserve(100);
  EXPECT_GT(RefuseOneByOne([=] { QTest::mouseClick(button, Qt::LeftButton); }, expectOrder), 3);
  EXPECT_GT(RefuseOneByOne([=] { QTest::keyClick(edit, 'y'); }, expectOrder), 2);
}

TEST_F(MemoryTest, AWindowGoesWithoutMemory) {
  QPointer<QWidget> window;
  const auto open = [&] {
    m_dialog = GetNewDialog(128);
    m_window = GetDialogWindow(m_dialog);
    Show();
    window = WidgetOf(m_window);
    m_onHit = [this] { DisposeDialog(m_dialog); };
  };
  DisposeDialog(m_dialog);
  open();
  const auto press = [&] { QTest::mouseClick(ItemWidget(kButton), Qt::LeftButton); };
  const auto expectGone = [&] {
    if (IsValidWindow(m_window)) press();  // the press itself was lost
    RunEventPass(0);
    EXPECT_TRUE(window.isNull());
    open();
  };
  EXPECT_GT(RefuseOneByOne(press, expectGone), 3);
}

}  // namespace
