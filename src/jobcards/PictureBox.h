#pragma once

#include <QFrame>
#include <QPixmap>

/// Shows one picture as large as its place allows, centred. A double click is its owner's to answer.
class PictureBox : public QFrame
{
    Q_OBJECT
public:
    explicit PictureBox(QWidget* parent = nullptr);

    /// Shows the picture of a file; says so when it is too large or damaged to be shown.
    void load(const QString& path);
    void clear();
    /// Says that a picture was taken and its file is gone; false: that none was taken.
    void showMissing(bool missing);
    const QString& words() const { return m_words; }
    const QPixmap& picture() const { return m_picture; }

Q_SIGNALS:
    void dblClicked();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture;
    QString m_words; ///< in place of a picture
};
