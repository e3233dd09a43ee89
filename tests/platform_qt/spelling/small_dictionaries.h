// Dictionaries of a few words, in a folder of their own.
#pragma once

#include <QFile>
#include <QTemporaryDir>

namespace verlume::qt {

class SmallDictionaries {
 public:
  void Add(const QString& name, const char* encoding, const QList<QByteArray>& words) {
    Write(name + ".aff", QByteArray("SET ") + encoding + "\nTRY aeioutdnrsl\n");
    Write(name + ".dic", QByteArray::number(words.size()) + '\n' + words.join('\n') + '\n');
  }
  QString Folder() const { return folder_.path(); }

 private:
  void Write(const QString& name, const QByteArray& content) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }

  QTemporaryDir folder_;
};

}  // namespace verlume::qt
