using System;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>How real number precisions are stated: in binary files by a form and two counts of bits, in clear text by
/// the smallest number, the largest one and the count of digits.</summary>
internal static class RealForms
{
    private const int FloatingForm = 0, FixedForm = 1;
    private const int SingleDigits = 7;
    private const double MaxSingle = 3.5e38;

    private static readonly Entry[] Table =
    [
        new(Precision.Fixed32, FixedForm, 16, 16, -32768, 32767, 9),
        new(Precision.Fixed64, FixedForm, 32, 32, int.MinValue, int.MaxValue, 19),
        new(Precision.Floating32, FloatingForm, 9, 23, -3.4028234e38, 3.4028234e38, SingleDigits),
        new(Precision.Floating64, FloatingForm, 12, 52, -1.7976931348623157e308, 1.7976931348623157e308, 17),
    ];

    internal static Precision? Find(int form, int whole, int fraction)
    {
        Entry? found = Array.Find(Table, one => (one.Form, one.Whole, one.Fraction) == (form, whole, fraction));
        return found?.Precision;
    }

    /// <summary>Finds a precision that holds the numbers of a clear text file.</summary>
    internal static Precision Find(double smallest, double largest, int digits)
    {
        Entry? found = Array.Find(Table, one => (one.Smallest, one.Largest, one.Digits) == (smallest, largest, digits));
        bool isSingle = digits <= SingleDigits && Math.Max(-smallest, largest) <= MaxSingle;
        return found?.Precision ?? (isSingle ? Precision.Floating32 : Precision.Floating64);
    }

    internal static Entry Of(Precision precision)
    {
        return Array.Find(Table, one => one.Precision == precision)
            ?? throw new CgmDataException($"there is no precision {(int)precision} of real numbers");
    }

    internal sealed record Entry(
        Precision Precision, int Form, int Whole, int Fraction, double Smallest, double Largest, int Digits);
}
