using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>No way was found to keep an encoded picture within the limits that were set for its size and quality.</summary>
public class RdOptimizationError : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public RdOptimizationError(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public RdOptimizationError(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
