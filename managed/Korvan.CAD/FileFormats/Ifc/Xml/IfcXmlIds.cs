using System;
using System.Collections.Generic;
using System.Globalization;

namespace Korvan.CAD.FileFormats.Ifc.Xml;

/// <summary>Numbers for the identifiers of elements: 12 for i12, larger ones for other identifiers.</summary>
internal sealed class IfcXmlIds
{
    private const long MaxOwnNumber = 999_999_999;

    private readonly Dictionary<string, long> _others = new(StringComparer.Ordinal);
    private long _last = MaxOwnNumber;

    /// <summary>Returns the number of an identifier; a new one for an element without an identifier.</summary>
    internal long NumberOf(string? id)
    {
        if (id is null)
        {
            return ++_last;
        }

        ReadOnlySpan<char> digits = id.StartsWith('i') ? id.AsSpan(1) : default;
        if (long.TryParse(digits, NumberStyles.None, CultureInfo.InvariantCulture, out long number)
            && number is > 0 and <= MaxOwnNumber && digits[0] != '0')
        {
            return number;
        }

        if (!_others.TryGetValue(id, out number))
        {
            _others[id] = number = ++_last;
        }

        return number;
    }
}
