#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// Walks through a CSV text row by row, copying only the fields that hold quotes or stray carriage
/// returns. Line ends are LF or CRLF; a quote may stand anywhere; outside quotes a lone CR is
/// dropped.
class CSVReader {
  public:
    /// `text` outlives the reader.
    explicit CSVReader(QStringView text) : text_(text) {}

    /// Goes to the next row; false when there is none. A line end at the end begins no row.
    [[nodiscard]] bool nextRow();

    /// Whether the text ends with the row.
    [[nodiscard]] bool isLast() const { return position_ == text_.size(); }

    /// How many fields the row has, at least 1.
    [[nodiscard]] size_t fieldCount() const { return fields_.size(); }

    /// A field of the row, unquoted; valid until the next row.
    [[nodiscard]] QStringView field(size_t index) const;

  private:
    enum class Ending { comma, line, text };
    struct Field {
        qsizetype begin = 0;
        qsizetype size = 0;
        bool copied = false;
    };

    [[nodiscard]] Ending readField();
    [[nodiscard]] Ending readCopiedField(QStringView beginning);
    [[nodiscard]] std::optional<Ending> takeEnding();
    [[nodiscard]] QStringView takePlain();
    void copyQuoted();
    void copy(QStringView text) { copied_.append(text.utf16(), static_cast<size_t>(text.size())); }
    [[nodiscard]] bool startsAt(qsizetype position, char16_t character) const {
        return position < text_.size() && text_[position] == character;
    }

    QStringView text_;
    qsizetype position_ = 0;
    std::vector<Field> fields_;
    std::u16string copied_;
};

/// The rows of a CSV text, each with its fields.
[[nodiscard]] std::vector<QStringList> parseCSV(const QString& text);

/// The fields as a line of CSV, line feed included. A field with a comma, a quote or a line feed is
/// quoted.
[[nodiscard]] QString formatCSV(const QStringList& fields);

}  // namespace velmora
