#ifndef PELORIN_SLIDERS_DIGITSTEP_P_H
#define PELORIN_SLIDERS_DIGITSTEP_P_H

#include <QString>

/// The weight of the digit number \a digits in a number as it is shown, counted from its first digit
/// other than 0: 0.01 for the third one in "3.45", 10 for the third one in "1250". The digits before
/// it become 0 and it becomes 1; what stands around it is kept, so that a minus makes the step
/// negative. For the first digit the answer is the number itself.
inline double digitStep(QString text, int digits)
{
    if (digits <= 1)
        return text.toDouble();
    int count = 0;
    for (QChar &character : text) {
        const bool isDigit = character >= QLatin1Char('0') && character <= QLatin1Char('9');
        if (!isDigit || (count == 0 && character == QLatin1Char('0')))
            continue;
        ++count;
        character = QLatin1Char(count == digits ? '1' : '0');
        if (count == digits)
            break;
    }
    return text.toDouble();
}

#endif
