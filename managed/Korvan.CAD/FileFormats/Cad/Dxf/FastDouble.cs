using System;
using System.Globalization;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Decimal text to double, exact to the last bit.</summary>
/// <remarks>
/// Numbers of at most 19 digits whose digits fit 53 bits and whose power of ten is at most 22 are one exact
/// multiplication or division: W. Clinger, "How to Read Floating Point Numbers Accurately" (1990), section 4. All
/// others go to the runtime.
/// </remarks>
internal static class FastDouble
{
    private static readonly double[] Powers =
    [
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19,
        1e20, 1e21, 1e22,
    ];

    internal static bool TryParse(ReadOnlySpan<byte> text, out double value)
    {
        int index = 0;
        bool negative = text.Length > 0 && text[0] == '-';
        index += negative || (text.Length > 0 && text[0] == '+') ? 1 : 0;
        ulong digits = 0;
        int first = index;
        int scale = 0;
        bool point = false;
        int count = 0;
        for (; index < text.Length; index++)
        {
            uint digit = (uint)(text[index] - '0');
            if (digit <= 9)
            {
                digits = (digits * 10) + digit;
                count += digits != 0 ? 1 : 0;
                scale -= point ? 1 : 0;
            }
            else if (text[index] == '.' && !point)
            {
                point = true;
            }
            else
            {
                break;
            }
        }

        // Exponents, too many digits and anything odd are rare.
        if (index < text.Length || count > 19 || digits > 1UL << 53 || scale < -22 || index == first + (point ? 1 : 0))
        {
            return double.TryParse(text, NumberStyles.Float, CultureInfo.InvariantCulture, out value);
        }

        value = digits / Powers[-scale];
        value = negative ? -value : value;
        return true;
    }
}
