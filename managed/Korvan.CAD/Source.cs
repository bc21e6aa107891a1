namespace Korvan.CAD;

/// <summary>A source or destination of data.</summary>
public abstract class Source
{
    /// <summary>Opens the stream.</summary>
    /// <returns>A container, which the caller disposes.</returns>
    public abstract StreamContainer GetStreamContainer();
}
