using System;
using System.Collections.Generic;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>What the content of a page refers to. A resource is named after the number of its object.</summary>
internal sealed class PdfResources
{
    internal const string Font = "F";
    internal const string State = "G";
    internal const string Image = "X";
    internal const string Shading = "S";
    internal const string Layer = "L";

    private static readonly string[][] Categories =
    [
        [Font, "/Font"], [State, "/ExtGState"], [Image, "/XObject"], [Shading, "/Shading"], [Layer, "/Properties"],
    ];

    private readonly Dictionary<int, string> _used = [];

    internal void Use(string prefix, int number) => _used[number] = prefix;

    /// <summary>Adds the dictionary.</summary>
    internal void Append(PdfBuffer target)
    {
        var numbers = new int[_used.Count];
        _used.Keys.CopyTo(numbers, 0);
        Array.Sort(numbers);
        target.Raw("<<"u8);
        foreach (string[] category in Categories)
        {
            bool open = false;
            foreach (int number in numbers)
            {
                if (_used[number] == category[0])
                {
                    _ = open ? target : target.Ascii(category[1]).Raw("<<"u8);
                    open = true;
                    target.Raw((byte)'/').Ascii(category[0]).Int(number).Raw((byte)' ').Ref(number);
                }
            }

            _ = open ? target.Raw(">>"u8) : target;
        }

        target.Raw(">>"u8);
    }
}
