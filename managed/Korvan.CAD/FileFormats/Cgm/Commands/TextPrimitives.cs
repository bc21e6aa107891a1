using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A piece of text; the last piece is marked as final.</summary>
[CgmCommand]
public abstract partial class TextCommand : Command
{
    /// <summary>Gets or sets whether more pieces follow.</summary>
    [CgmEnum]
    public AppendText.FinalType Final { get; set; } = AppendText.FinalType.Final;

    /// <summary>Gets or sets the characters.</summary>
    [CgmString]
    public string Content { get; set; } = "";
}

/// <summary>A text at a point.</summary>
[CgmCommand(GraphicalPrimitiveElement.Text, "TEXT",
    Default = "an empty text at the origin", BaseLast = true)]
[CgmConstructor(nameof(Position), nameof(Content))]
public sealed partial class Text : TextCommand
{
    /// <summary>Gets or sets the point that the text is aligned to.</summary>
    [CgmPoint]
    public CgmPoint Position { get; set; } = new();
}

/// <summary>A text that is kept inside a parallelogram.</summary>
[CgmCommand(GraphicalPrimitiveElement.RestrictedText, "RESTRTEXT",
    Default = "an empty text at the origin", BaseLast = true)]
public sealed partial class RestrictedText : TextCommand
{
    /// <summary>Gets or sets the length of the parallelogram along the text, in units of the coordinates.</summary>
    [CgmVdc]
    public double ExtentWidth { get; set; }

    /// <summary>Gets or sets the length of the parallelogram across the text.</summary>
    [CgmVdc]
    public double ExtentHeight { get; set; }

    /// <summary>Gets or sets the point that the text is aligned to.</summary>
    [CgmPoint]
    public CgmPoint Position { get; set; } = new();
}

/// <summary>A further piece of the text before it; attributes may have changed in between.</summary>
[CgmCommand(GraphicalPrimitiveElement.AppendText, "APNDTEXT",
    Default = "an empty piece")]
public sealed partial class AppendText : TextCommand
{
    /// <summary>Whether a text ends with a piece.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum FinalType
    {
        /// <summary>More pieces follow.</summary>
        [CgmKeyword("NOTFINAL")]
        NotFinal = 0,

        /// <summary>This is the last piece.</summary>
        [CgmKeyword("FINAL")]
        Final = 1,
    }
}
