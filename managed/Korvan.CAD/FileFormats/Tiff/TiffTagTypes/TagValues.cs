using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>Values of a tag, whatever their type.</summary>
internal interface ITagValues
{
    int Count { get; }

    double[] ToDoubles();

    void Read(TiffStreamReader reader, long position, int count);

    void Write(TiffStreamWriter writer);
}

/// <summary>How one value of a type is stored, and which values it can hold.</summary>
internal sealed record TagElement<T>(
    int Size, Func<TiffStreamReader, long, T> Read, Action<TiffStreamWriter, T> Write, Func<T, double> ToDouble)
{
    /// <summary>Throws for an array that cannot be stored; any array but null can where there is no check.</summary>
    internal Action<T[]>? Verify { get; init; }
}

/// <summary>The values of a tag of one type.</summary>
internal sealed class TagValues<T>(TagElement<T> element) : ITagValues
{
    private T[] _items = [];

    public int Count => _items.Length;

    internal T[] Items
    {
        get => _items;
        set
        {
            Verify.NotNull(value, "values");
            element.Verify?.Invoke(value);
            _items = value;
        }
    }

    public double[] ToDoubles() => Array.ConvertAll(_items, value => element.ToDouble(value));

    public void Read(TiffStreamReader reader, long position, int count)
    {
        _items = new T[count];
        for (int i = 0; i < count; i++)
        {
            _items[i] = element.Read(reader, position + ((long)element.Size * i));
        }
    }

    public void Write(TiffStreamWriter writer)
    {
        foreach (T item in _items)
        {
            element.Write(writer, item);
        }
    }
}
