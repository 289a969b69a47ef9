#pragma once

#include <QByteArray>
#include <QPointer>
#include <QStringList>
#include <vector>

class QWidget;

/// The tagged texts of a form. The form is designed with them as captions and tooltips; as a caption loses
/// its tag when the text of a language replaces it, they are kept here, to be applied again at every change
/// of language. Texts without a tag are not kept: they are never translated.
class TaggedCaptions {
 public:
  /// Keeps the tagged captions, titles, tooltips and accessible names of `form` and all it holds: first those
  /// of the controls named in `order`, in that order, then the others. Once, before the first `apply`.
  void capture(QWidget& form, const QStringList& order);

  /// Sets each kept property to the current language's text.
  void apply() const;

 private:
  static constexpr int kNoTab = -1;

  struct Kept {
    QPointer<QObject> object;
    QByteArray property;
    QString tagged;
    int tab = kNoTab;  ///< for the captions of tabs, which are no property
  };

  void captureWidget(QWidget& widget);
  void sort(const QStringList& order);
  void keep(QObject& object, const QByteArray& property, const QString& text, int tab = kNoTab);

  std::vector<Kept> m_kept;
};
