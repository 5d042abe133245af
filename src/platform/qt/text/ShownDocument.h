#pragma once

#include "document/model/Document.h"

#include <QTextDocument>

namespace korvane {

/// A document of Qt that shows one of ours. Pictures are decoded when they are first shown.
class ShownDocument final : public QTextDocument {
public:
    /// The pictures are read from this document, which must live as long.
    explicit ShownDocument(const doc::Document& source);

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    const doc::Document& source_;
};

/// The name of a picture that is counted from 1.
QString PictureName(doc::Index image);

} // namespace korvane
