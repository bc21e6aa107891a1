using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A message to the person at the machine.</summary>
public sealed class MessageCommand : Command
{
    private static readonly string[] Words = ["NOACTION", "ACTION"];

    /// <summary>Creates the element with its defaults.</summary>
    public MessageCommand()
        : base(ClassCode.ExternalElement, (int)ExternalElement.MessageCommand)
    {
    }

    /// <summary>Whether the person has to do something.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ActionType
    {
        /// <summary>No.</summary>
        NoAction = 0,

        /// <summary>Yes; drawing waits.</summary>
        Action = 1,
    }

    /// <summary>Gets or sets whether the person has to do something.</summary>
    public ActionType Action { get; set; }

    /// <summary>Gets or sets the message.</summary>
    public string Message { get; set; } = "";

    internal override void Exchange(ParameterExchange x)
    {
        Action = x.Enumeration(Action, Words);
        Message = x.String(Message);
    }
}
