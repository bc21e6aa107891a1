namespace Korvan.CAD;

/// <summary>A place that data is read from or written to.</summary>
public abstract class Source
{
    /// <summary>Opens the place.</summary>
    /// <returns>A container that the caller disposes.</returns>
    public abstract StreamContainer GetStreamContainer();
}
