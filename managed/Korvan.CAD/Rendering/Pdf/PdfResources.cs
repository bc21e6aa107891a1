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

    private static readonly (string Prefix, string Category)[] Categories =
    [
        (Font, "/Font"), (State, "/ExtGState"), (Image, "/XObject"), (Shading, "/Shading"), (Layer, "/Properties"),
    ];

    private readonly SortedSet<(string Prefix, int Number)> _used = [];

    internal void Use(string prefix, int number) => _used.Add((prefix, number));

    /// <summary>Adds the dictionary.</summary>
    internal void Append(PdfBuffer target)
    {
        target.Raw("<<"u8);
        foreach ((string prefix, string category) in Categories)
        {
            bool open = false;
            foreach ((string own, int number) in _used)
            {
                if (own == prefix)
                {
                    _ = open ? target : target.Ascii(category).Raw("<<"u8);
                    open = true;
                    target.Raw((byte)'/').Ascii(prefix).Int(number).Raw((byte)' ').Ref(number);
                }
            }

            _ = open ? target.Raw(">>"u8) : target;
        }

        target.Raw(">>"u8);
    }
}
