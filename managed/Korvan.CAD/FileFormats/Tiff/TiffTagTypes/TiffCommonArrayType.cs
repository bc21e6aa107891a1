using System;
using System.Globalization;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose values are numbers.</summary>
public abstract class TiffCommonArrayType : TiffDataType
{
    private readonly ITagValues _items;

    internal TiffCommonArrayType(int tagId, ITagValues items)
        : base(tagId)
    {
        _items = items;
    }

    /// <summary>Returns the values as floating-point numbers, whatever their type.</summary>
    /// <returns>The values in their order.</returns>
    public abstract double[] ToDoubles();

    /// <inheritdoc/>
    public override string ToString()
    {
        string[] values = Array.ConvertAll(ToDoubles(), static v => v.ToString(CultureInfo.InvariantCulture));
        return $"{TagId} ({TagType}): {string.Join(' ', values)}";
    }

    internal override void Read(TiffStreamReader reader, long position, int count) =>
        _items.Read(reader, position, count);

    internal override void Write(TiffStreamWriter writer) => _items.Write(writer);
}
