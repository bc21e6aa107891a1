using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>Parts of objects that text files enclose in braces: a group code begins them, another ends them.</summary>
internal static class FieldParts
{
    /// <summary>Reads the fields of a part up to its end.</summary>
    /// <param name="reader">Stands at the field that begins the part.</param>
    /// <param name="end">The group code that ends it.</param>
    /// <param name="read">Takes a field over; tells whether the part has such a field.</param>
    /// <param name="unknown">Gets the fields that the part does not have.</param>
    internal static void Read(
        FieldReader reader, int end, Func<int, FieldReader, bool> read, List<CadCodeValue> unknown)
    {
        const int subclassMarker = 100;
        const int firstXdata = 1000;
        while (reader.Next() && reader.Code != end)
        {
            if (reader.Code is 0 or subclassMarker or >= firstXdata)
            {
                // The end is missing: what follows is not of this part.
                reader.Unread();
                return;
            }

            if (!read(reader.Code, reader))
            {
                unknown.Add(reader.ToCodeValue());
            }
        }
    }
}
