declare module "virtual:licences" {
  const licences: string;
  export default licences;
}
