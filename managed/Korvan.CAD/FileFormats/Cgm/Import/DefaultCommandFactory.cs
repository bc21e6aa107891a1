using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Elements;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>Creates the commands of all elements of the standard.</summary>
internal sealed class DefaultCommandFactory : ICommandFactory
{
    internal static readonly DefaultCommandFactory Instance = new();

    public Command CreateCommand(CommandConstructorArguments arguments)
    {
        Verify.NotNull(arguments);
        ElementEntry? entry = ElementTables.Find(arguments.ElementClass, arguments.ElementId);
        return entry?.Create() ?? new UnknownCommand(arguments);
    }
}
