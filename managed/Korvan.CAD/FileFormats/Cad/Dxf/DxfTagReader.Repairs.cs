using System;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <content>Numbers that letters follow, as damaged files have them.</content>
internal sealed partial class DxfTagReader
{
    private int _repairedOffset = -1;

    /// <summary>
    /// Takes the number that a value begins with, where only letters follow. Digits, signs and separators may be a part
    /// of what was meant, so that such values are not repaired, and neither is a number that ends within its exponent.
    /// </summary>
    private bool TryRepair(LoadDefectCode defect, out double value)
    {
        ReadOnlySpan<byte> text = Trimmed();
        int length = text.Length;
        while (length > 0 && char.IsAsciiLetter((char)text[length - 1]))
        {
            length--;
        }

        ReadOnlySpan<byte> letters = text[length..];
        bool breaksOff = letters.Length == 1 && (letters[0] | 0x20) is 'e' or 'd';
        value = 0;
        if (Repaired is null || letters.IsEmpty || breaksOff || !FastDouble.TryParse(text[..length], out value))
        {
            return false;
        }

        // A value may be looked at before it is read.
        if (_repairedOffset < TagOffset)
        {
            _repairedOffset = TagOffset;
            Repaired(Defect(
                defect,
                FormattableString.Invariant(
                    $"group code {Code} has the value '{Shortened(ValueText())}', which was taken for {value}")));
        }

        return true;
    }
}
