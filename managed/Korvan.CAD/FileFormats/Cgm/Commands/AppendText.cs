using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A further piece of the text before it; attributes may have changed in between.</summary>
public sealed class AppendText : TextCommand
{
    internal static readonly string[] FinalWords = ["NOTFINAL", "FINAL"];

    /// <summary>Creates an empty piece.</summary>
    public AppendText()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.AppendText)
    {
    }

    /// <summary>Whether a text ends with a piece.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum FinalType
    {
        /// <summary>More pieces follow.</summary>
        NotFinal = 0,

        /// <summary>This is the last piece.</summary>
        Final = 1,
    }
}
