using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A string of text; the last one is marked as final.</summary>
[CgmCommand]
public abstract partial class TextCommand : Command
{
    /// <summary>Gets or sets whether more strings follow.</summary>
    [CgmEnum]
    public AppendText.FinalType Final { get; set; } = AppendText.FinalType.Final;

    /// <summary>Gets or sets the string.</summary>
    [CgmString]
    public string Content { get; set; } = "";
}

/// <summary>Text at a point.</summary>
[CgmCommand(GraphicalPrimitiveElement.Text, "TEXT", Default = "an empty text at the origin", BaseLast = true)]
[CgmConstructor(nameof(Position), nameof(Content))]
public sealed partial class Text : TextCommand
{
    /// <summary>Gets or sets the position that the text is aligned to.</summary>
    [CgmPoint]
    public CgmPoint Position { get; set; } = new();
}

/// <summary>Text inside a parallelogram.</summary>
[CgmCommand(GraphicalPrimitiveElement.RestrictedText, "RESTRTEXT",
    Default = "an empty text at the origin", BaseLast = true)]
public sealed partial class RestrictedText : TextCommand
{
    /// <summary>Gets or sets the size of the parallelogram along the text, in VDC.</summary>
    [CgmVdc]
    public double ExtentWidth { get; set; }

    /// <summary>Gets or sets the size of the parallelogram across the text, in VDC.</summary>
    [CgmVdc]
    public double ExtentHeight { get; set; }

    /// <summary>Gets or sets the position that the text is aligned to.</summary>
    [CgmPoint]
    public CgmPoint Position { get; set; } = new();
}

/// <summary>A continuation of the text before it; attributes may have changed in between.</summary>
[CgmCommand(GraphicalPrimitiveElement.AppendText, "APNDTEXT", Default = "an empty string")]
public sealed partial class AppendText : TextCommand
{
    /// <summary>Whether a string ends the text.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum FinalType
    {
        /// <summary>More strings follow.</summary>
        [CgmKeyword("NOTFINAL")] NotFinal = 0,

        /// <summary>This is the last string.</summary>
        [CgmKeyword("FINAL")] Final = 1,
    }
}
