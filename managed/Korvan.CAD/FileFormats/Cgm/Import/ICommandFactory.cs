using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>Makes the commands that a reader fills.</summary>
public interface ICommandFactory
{
    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="arguments">The element.</param>
    /// <returns>The command; an <see cref="UnknownCommand"/> for an element that no standard names.</returns>
    Command CreateCommand(CommandConstructorArguments arguments);
}
