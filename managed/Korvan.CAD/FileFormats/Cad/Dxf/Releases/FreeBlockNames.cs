using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Names of blocks that a drawing does not have, for anonymous blocks: a prefix and a number.</summary>
internal sealed class FreeBlockNames(CadDrawing drawing, string prefix)
{
    // Lists look for a name that they do not have from end to end.
    private readonly Lazy<HashSet<string>> _taken = new(
        () => DrawingIntegrity.NamesOf(drawing.BlockEntities.Items.Select(static block => block.Name)));

    private int _number;

    /// <summary>Returns a name, which is taken from then on.</summary>
    internal string Next()
    {
        string name;
        do
        {
            name = string.Create(CultureInfo.InvariantCulture, $"{prefix}{++_number}");
        }
        while (!_taken.Value.Add(name));
        return name;
    }
}
