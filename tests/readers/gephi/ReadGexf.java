import java.io.File;
import java.util.logging.LogManager;
import org.gephi.graph.api.Edge;
import org.gephi.graph.api.GraphController;
import org.gephi.graph.api.GraphModel;
import org.gephi.graph.api.Node;
import org.gephi.io.importer.api.Container;
import org.gephi.io.importer.api.ImportController;
import org.gephi.io.processor.plugin.DefaultProcessor;
import org.gephi.project.api.ProjectController;
import org.gephi.project.api.Workspace;
import org.openide.util.Lookup;

/**
 * What Gephi finds in GEXF files, as lines with tabs: "node NAME ATTRIBUTE VALUE" for each list of
 * communities, "edge NAME NAME WEIGHT DIRECTED", and "end" behind each file.
 */
public class ReadGexf {
  public static void main(String[] files) throws Exception {
    LogManager.getLogManager().reset();
    ProjectController projects = Lookup.getDefault().lookup(ProjectController.class);
    ImportController imports = Lookup.getDefault().lookup(ImportController.class);
    projects.newProject();
    for (String file : files) {
      Container container = imports.importFile(new File(file));
      Workspace workspace = projects.newWorkspace(projects.getCurrentProject());
      imports.process(container, new DefaultProcessor(), workspace);
      print(Lookup.getDefault().lookup(GraphController.class).getGraphModel(workspace));
    }
  }

  private static void print(GraphModel model) {
    for (Node node : model.getGraph().getNodes())
      for (String attribute : node.getAttributeKeys())
        if (attribute.startsWith("communities_k") && node.getAttribute(attribute) != null)
          System.out.println(String.join("\t", "node", node.getLabel(), attribute,
              String.join("|", (String[]) node.getAttribute(attribute))));
    for (Edge edge : model.getGraph().getEdges())
      System.out.println(String.join("\t", "edge", edge.getSource().getLabel(),
          edge.getTarget().getLabel(), "" + edge.getWeight(), "" + edge.isDirected()));
    System.out.println("end");
  }
}
