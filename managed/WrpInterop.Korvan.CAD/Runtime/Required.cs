using System;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// Values that are declared to be there. A null would be found late, far from where it was given and without a name.
/// </summary>
public static class Required
{
    /// <param name="place">The property or argument, as Python knows it.</param>
    public static Exception Missing(string place) => new ArgumentNullException(null, $"{place} must not be None.");
}
