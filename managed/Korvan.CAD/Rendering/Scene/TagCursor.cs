using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Walks the tags of an entity that the model keeps as they were read.</summary>
internal sealed class TagCursor(IReadOnlyList<CadCodeValue> tags)
{
    private int at = -1;

    internal int Code => tags[at].Attribute;

    internal string Text => tags[at].Value;

    internal int Left => tags.Count - at - 1;

    internal bool Next() => ++at < tags.Count;

    internal double Number =>
        double.TryParse(Text, NumberStyles.Float, CultureInfo.InvariantCulture, out double value) ? value : 0;

    internal int Integer => Number is > int.MinValue and < int.MaxValue ? (int)Number : 0;

    internal ulong Handle =>
        ulong.TryParse(Text, NumberStyles.AllowHexSpecifier, CultureInfo.InvariantCulture, out ulong value) ? value : 0;

    /// <summary>The point whose x is the current tag; the cursor moves on to its last coordinate.</summary>
    internal Vec3 Point()
    {
        int code = Code;
        double x = Number;
        double y = Following(code + 10);
        return new Vec3(x, y, Following(code + 20));
    }

    private double Following(int code)
    {
        if (at + 1 >= tags.Count || tags[at + 1].Attribute != code)
        {
            return 0;
        }

        at++;
        return Number;
    }
}
