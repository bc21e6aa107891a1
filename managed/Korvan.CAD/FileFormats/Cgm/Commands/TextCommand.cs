using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A piece of text; the last piece is marked as final.</summary>
public abstract class TextCommand : Command
{
    private protected TextCommand(ClassCode elementClass, int elementId)
        : base(elementClass, elementId)
    {
    }

    /// <summary>Gets or sets whether more pieces follow.</summary>
    public AppendText.FinalType Final { get; set; } = AppendText.FinalType.Final;

    /// <summary>Gets or sets the characters.</summary>
    public string Content { get; set; } = "";

    internal override void Exchange(ParameterExchange x)
    {
        Final = x.Enumeration(Final, AppendText.FinalWords);
        Content = x.String(Content);
    }
}
