using System;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.FileManagement;

namespace Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

/// <summary>A field that is a text.</summary>
public class TiffASCIIType : TiffDataType
{
    private string _text = "";

    /// <summary>Creates a field without text.</summary>
    /// <param name="tagId">The number of the field.</param>
    public TiffASCIIType(int tagId)
        : base(tagId)
    {
    }

    /// <summary>Creates a field.</summary>
    /// <param name="tagId">The number of the field.</param>
    /// <param name="text">The text.</param>
    public TiffASCIIType(int tagId, string text)
        : base(tagId)
    {
        Text = text;
    }

    /// <summary>Gets or sets the text. Characters beyond ASCII are stored as UTF-8, as most programs do.</summary>
    /// <exception cref="ArgumentException">The text holds a zero character, which would end it.</exception>
    public string Text
    {
        get => _text;
        set
        {
            Verify.NotNull(value);
            if (value.Contains('\0'))
            {
                throw new ArgumentException("A text of a field cannot hold a zero character.");
            }

            _text = value;
        }
    }

    /// <inheritdoc/>
    public override TiffDataTypes TagType => TiffDataTypes.Ascii;

    /// <summary>Gets how many bytes the text takes, with its zero byte.</summary>
    public override int Count => Encoding.UTF8.GetByteCount(_text) + 1;

    /// <inheritdoc/>
    public override int ElementSize => 1;

    /// <inheritdoc/>
    public override string ToString() => $"{TagId} ({TagType}): {_text}";

    internal override void Read(TiffStreamReader reader, long position, int count) => _text = reader.ReadText(position, count);

    internal override void Write(TiffStreamWriter writer) => writer.WriteText(_text);
}
