#pragma once

#include <QHash>
#include <QObject>
#include <QPixmap>
#include <QThreadPool>

namespace forms {

/// Small pictures of picture files, each read once, in a thread of its own: a list of photographs scrolls
/// while they come.
class Thumbnails : public QObject
{
    Q_OBJECT
public:
    /// Each is this large, in pixels of the layout, with the picture in its middle.
    explicit Thumbnails(const QSize& size, QObject* parent = nullptr);
    /// Waits for the file that is being read; those behind it are left.
    ~Thumbnails() override;

    /// That of a file. It is blank until it has been read, and for a file that is no picture.
    QPixmap of(const QString& path);
    /// Leaves all that have not been read: others will be asked for.
    void leave();

Q_SIGNALS:
    /// One more has been read.
    void arrived();

private:
    void take(const QString& path, const QImage& image);

    const QSize m_size;
    QHash<QString, QPixmap> m_known; ///< blank for those that are not read yet
    QThreadPool m_reader;
};

} // namespace forms
