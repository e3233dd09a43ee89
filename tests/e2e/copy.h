// One copy of the built program in a folder of its own, driven from outside: keys and clicks come
// from the X server, what it shows is read through the clipboard and its files.
#pragma once

#include <QProcess>
#include <QSize>
#include <QString>
#include <QTemporaryDir>
#include <functional>

namespace verlume::e2e {

// Calls `condition` until it holds; false when it does not within the limit.
bool WaitUntil(const std::function<bool()>& condition, int limitMilliseconds = 20000);

// A port of this machine that is free, most likely; another one each time.
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
  // The window manager's word for what the window is, as xprop prints it: "DEMANDS_ATTENTION".
  bool HasState(const QString& state) const;
  // Whether the active window is this copy's window of that title.
  bool IsActive(const QString& title = "Verlume") const;

  bool HasWindow(const QString& title) const { return !FindWindow(title).isEmpty(); }

  // Presses a key in a box of that title until the box is gone; false when it never came or stays.
  bool AnswerBox(const QString& title, const QString& key);

  // Waits for a window of that title and types into it, ASCII only; false when it never came.
  bool TypeInto(const QString& title, const QString& text);
  bool Shows(const QString& title) const { return !FindWindow(title).isEmpty(); }

  // Clicks in the window, at parts of its width and height.
  void ClickAt(double across, double down);

  QString Dialogue();  // what the dialogue pane shows, read as a user would copy it
  QString Log(const QString& partner) const;
  // The end of it, of a kilobyte or so: a log may be long.
  QString EndOfLog(const QString& partner) const;
  QString Settings() const;
  QString Macro(const QString& name) const;  // the rich text of its file
  const QString& Window() const { return window_; }
  // Clicks on the close box that the window manager has put into the window's title bar.
  void ClickCloseBox();
  void Kill();  // at once, without a word
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
