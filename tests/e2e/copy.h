// One running copy of the built program, in a folder of its own. Keys and clicks are sent through
// the X server; what it shows is read from the clipboard and from its files.
#pragma once

#include <QProcess>
#include <QSize>
#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <optional>

namespace verlume::e2e {

// Calls `condition` until it holds; false when it does not within the limit.
bool WaitUntil(const std::function<bool()>& condition, int limitMilliseconds = 20000);

// A port of this machine that is most likely free; a different one each time.
QString NextPort();

class Copy {
 public:
  // Starts the program and waits for its window.
  Copy(const QString& nickname, bool isGreek);
  ~Copy();

  // Types into the command pane, key by key where the line is ASCII, and presses Enter.
  void TypeLine(const QString& line);
  // The same without Enter. ASCII only.
  void Type(const QString& text);
  void PressKeys(const QString& keys);  // as xdotool names them: "Return", "ctrl+a"

  // The same by keys sent to the window alone, wherever the keyboard focus is. ASCII only.
  void TypeLineInBackground(const QString& line);

  // Makes the window the active one.
  void Activate();
  // Whether the window has this state of the window manager, named as in "DEMANDS_ATTENTION".
  bool HasState(const QString& state) const;
  // Whether the active window is this copy's window of that title.
  bool IsActive(const QString& title = "Verlume") const;

  bool HasWindow(const QString& title) const { return !FindWindow(title).isEmpty(); }

  // Presses a key in the box of that title until it closes; false when it never opens or closes.
  bool AnswerBox(const QString& title, const QString& key);

  // Waits for a window of that title and types into it, ASCII only; false when it never opens.
  bool TypeInto(const QString& title, const QString& text);
  bool Shows(const QString& title) const { return !FindWindow(title).isEmpty(); }

  // Clicks in the window, at a place given as parts of its width and height.
  void ClickAt(double across, double down);

  QString Dialogue();  // what the dialogue pane shows, read as a user would copy it
  QString Log(const QString& partner) const;
  // The last kilobyte or so of a log, which may be long.
  QString EndOfLog(const QString& partner) const;
  QString Settings() const;
  QString Macro(const QString& name) const;  // the rich text of its file
  const QString& Window() const { return window_; }
  // Clicks on the close button in the window's title bar.
  void ClickCloseBox();
  // Starts the program once more in the same folder; the exit status, none if it does not end.
  std::optional<int> StartAgain(const QStringList& arguments) const;
  void Kill();  // at once, without an orderly end
  // Starts the program again in its folder, after its end.
  void Restart();
  bool HasEnded() { return program_.state() == QProcess::NotRunning; }
  qint64 Process() const { return program_.processId(); }
  bool WaitForEnd() { return program_.waitForFinished(10000); }
  int ExitCode() const { return program_.exitCode(); }

 private:
  QString LogPath(const QString& partner) const;
  QString FindWindow(const QString& title) const;
  QSize Size() const;
  void ClickAtPixel(int x, int y);  // of the window, whatever lies over it

  QTemporaryDir folder_;
  QProcess program_;
  QString window_;
};

}  // namespace verlume::e2e
