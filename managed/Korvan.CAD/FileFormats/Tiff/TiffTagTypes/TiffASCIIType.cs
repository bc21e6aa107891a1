using System;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A tag whose value is a string.</summary>
public class TiffASCIIType : TiffDataType
{
    private string _text = "";

    /// <summary>Creates a tag with an empty string.</summary>
    /// <param name="tagId">The tag number.</param>
    public TiffASCIIType(int tagId)
        : base(tagId)
    {
    }

    /// <summary>Creates a tag.</summary>
    /// <param name="tagId">The tag number.</param>
    /// <param name="text">The text.</param>
    public TiffASCIIType(int tagId, string text)
        : base(tagId)
    {
        Text = text;
    }

    /// <summary>Gets or sets the string. Characters beyond ASCII are stored as UTF-8.</summary>
    /// <exception cref="ArgumentException">The string contains a null character, which would end it.</exception>
    public string Text
    {
        get => _text;
        set
        {
            Verify.NotNull(value);
            if (value.Contains('\0'))
            {
                throw new ArgumentException("The string of a tag cannot contain a null character.");
            }

            _text = value;
        }
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Ascii;

    /// <summary>Gets the size of the string in bytes, with its zero byte.</summary>
    public override int Count => Encoding.UTF8.GetByteCount(_text) + 1;

    /// <inheritdoc/>
    public override int ElementSize => 1;

    /// <inheritdoc/>
    public override string ToString() => $"{TagId} ({TagType}): {_text}";

    internal override void Read(TiffStreamReader reader, long position, int count) =>
        _text = reader.ReadText(position, count);

    internal override void Write(TiffStreamWriter writer) => writer.WriteText(_text);
}
