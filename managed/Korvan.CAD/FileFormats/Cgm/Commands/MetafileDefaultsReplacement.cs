using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Elements whose values every picture begins with.</summary>
public sealed class MetafileDefaultsReplacement : Command
{
    /// <summary>Creates an empty list.</summary>
    public MetafileDefaultsReplacement()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.MetafileDefaultsReplacement)
    {
    }

    /// <summary>Gets or sets the elements.</summary>
    public List<Command> Commands { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        bool before = x.State.ReplacesDefaults;
        x.State.ReplacesDefaults = true;
        try
        {
            Commands = x.Commands(Commands);
        }
        finally
        {
            x.State.ReplacesDefaults = before;
        }
    }
}
