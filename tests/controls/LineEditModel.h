#ifndef PELORIN_TESTS_LINEEDITMODEL_H
#define PELORIN_TESTS_LINEEDITMODEL_H

#include <QStringList>

#include <cmath>
#include <cstdlib>

/// A plain second opinion on the number field: a line of text with a cursor, the two values, every
/// rule written out, and the signals as a list of texts. Of selections it knows all or nothing.
class LineEditModel
{
public:
    // what stands in the field
    QString line = QStringLiteral("100.00");
    int cursor = 0;
    bool allSelected = false;

    double low = 100.0;
    double high = 2000.0;
    int decimals = 2;
    bool infinity = false;
    bool timed = true;
    bool running = false; ///< the edit timer
    double current = 100.0;
    double edited = 100.0;
    QString currentText = QStringLiteral("100.00");
    QString editedText = QStringLiteral("100.00");
    QStringList log;

    void setValue(double value)
    {
        takeCurrent(value);
        if (!running) {
            takeEdited(value);
            show(editedText);
        }
    }

    void changeValue(double value)
    {
        setValue(value);
        say("valueChanged", outside(current));
    }

    void setRange(double min, double max, bool silent)
    {
        low = min;
        high = max;
        double wanted = current;
        if (accepts(wanted))
            return;
        takeCurrent(wanted);
        if (!running) {
            takeEdited(current);
            show(editedText);
        }
        if (!silent)
            say("valueChanged", outside(current));
    }

    void setDecimals(int count)
    {
        decimals = count;
        takeCurrent(current);
    }

    void typed(QChar character)
    {
        key();
        removeSelection();
        line.insert(cursor++, character);
        textEdited();
    }

    void backspace()
    {
        key();
        if (removeSelection()) {
            textEdited();
        } else if (cursor > 0) {
            line.remove(--cursor, 1);
            textEdited();
        }
    }

    void del()
    {
        key();
        if (removeSelection()) {
            textEdited();
        } else if (cursor < line.size()) {
            line.remove(cursor, 1);
            textEdited();
        }
    }

    void home() { walk(0); }
    void end() { walk(line.size()); }
    void left() { walk(cursor > 0 ? cursor - 1 : 0); }
    void right() { walk(cursor < line.size() ? cursor + 1 : cursor); }

    /// A key that does nothing else.
    void key()
    {
        if (timed)
            running = true;
    }

    void enter()
    {
        key();
        commit();
        selectAll();
    }

    void loseFocus()
    {
        commit();
        allSelected = false;
    }

    void step(int direction)
    {
        key();
        const int right = editedText.size() - cursor;
        const int exponent = right > decimals ? right - 1 : right;
        takeEdited(edited + (direction / std::pow(10, decimals)) * std::pow(10, exponent));
        show(editedText);
        say("valueChanging", outside(edited));
        takeCurrent(edited);
        say("valueChanged", current);
    }

    void timeout()
    {
        if (!running)
            return;
        running = false;
        show(currentText);
        say("valueChanging", outside(current));
        selectAll();
    }

    void popupMoves(double value)
    {
        takeEdited(value);
        show(editedText);
        say("valueChanging", outside(edited));
    }

    void popupSettles()
    {
        commit();
        selectAll();
    }

private:
    void say(const char *name, double value)
    {
        log << QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(value, 0, 'g', 12);
    }

    /// Clamps, and tells whether there was no need.
    bool accepts(double &value) const
    {
        if (high > low) {
            if (value < low) {
                value = low;
                return false;
            }
            if (value > high) {
                value = infinity ? HUGE_VAL : high;
                return false;
            }
            return true;
        }
        if (value < high) {
            value = high;
            return false;
        }
        if (value > low) {
            value = infinity ? HUGE_VAL : low;
            return false;
        }
        return true;
    }

    QString written(double value) const
    {
        if (infinity && std::isinf(value))
            return QString(QChar(0x221E));
        return QString::number(value, 'f', decimals);
    }

    double read(const QString &text) const
    {
        if (infinity && (text.toLower() == QLatin1String("inf") || text == QChar(0x221E)))
            return HUGE_VAL;
        const QByteArray bytes = text.toLatin1();
        char *stop = nullptr;
        const double value = std::strtod(bytes.constData(), &stop);
        return *stop == '\0' ? value : 0.0;
    }

    double outside(double value) const
    {
        if (std::isinf(value))
            return value;
        const double factor = std::pow(10, decimals);
        return std::floor(value * factor + 0.5) / factor;
    }

    bool takeEdited(double value)
    {
        const QString before = editedText;
        edited = value;
        accepts(edited);
        editedText = written(edited);
        return editedText != before;
    }

    bool takeCurrent(double value)
    {
        const QString before = currentText;
        current = value;
        accepts(current);
        currentText = written(current);
        return currentText != before;
    }

    void commit()
    {
        running = false;
        const double value = read(editedText);
        if (takeEdited(value))
            say("valueChanging", outside(edited));
        show(editedText);
        if (takeCurrent(value))
            say("valueChanged", outside(current));
    }

    void show(const QString &text)
    {
        line = text;
        cursor = qMin(cursor, line.size());
        allSelected = false;
    }

    void selectAll()
    {
        allSelected = !line.isEmpty();
        cursor = line.size();
    }

    void walk(int place)
    {
        key();
        cursor = place;
        allSelected = false;
    }

    bool removeSelection()
    {
        if (!allSelected)
            return false;
        line.clear();
        cursor = 0;
        allSelected = false;
        return true;
    }

    void textEdited()
    {
        takeEdited(read(line));
        say("valueChanging", outside(edited));
        if (timed)
            running = true;
    }
};

#endif
