using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>Creates the commands that a reader fills.</summary>
public interface ICommandFactory
{
    /// <summary>Returns a new command for an element, without parameters yet.</summary>
    /// <param name="arguments">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    Command CreateCommand(CommandConstructorArguments arguments);
}
